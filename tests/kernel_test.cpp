#include "kernel_standin/kernel_trace.h"
#include "tests/support/bodies.h"
#include "tests/support/helpers.h"
#include "vrx_api/common/subent_id.h"

#include <gtest/gtest.h>

#include <limits>

using test::Bodies;
using vrx::ExcSubentId;

namespace
{

const char* const kEmptyListRecords = "00000000 00000000";

// A body with the payload AB that holds a wire of one closed edge.
const char* const kWireBodyRecords = "04000000"
                                     "01 00000000 01000000 01000000 0200000000000000 4142"
                                     "08 01000000 01000000 02000000"
                                     "06 02000000 02000000 03000000 03000000"
                                     "07 03000000 00000000"
                                     "01000000 00000000";

BODY* makeWireBody()
{
    auto* const body = new BODY;
    auto* const wire = new WIRE;
    auto* const edge = new EDGE;
    auto* const vertex = new VERTEX;
    body->setPayload({'A', 'B'});
    body->addPart(wire);
    wire->addPart(edge);
    edge->addPart(vertex);
    edge->addPart(vertex);
    return body;
}

TEST(Kernel, SavesInItsFormat)
{
    Bodies wire;
    wire.list().add(makeWireBody());
    const std::string head = "454E544C4953541A 01000000";
    EXPECT_EQ(test::saved(wire.list()), test::bytes(head + "4A00000000000000" + kWireBodyRecords + "71F0A5A4"));
    EXPECT_EQ(test::saved(ENTITY_LIST()), test::bytes(head + "0800000000000000" + kEmptyListRecords + "69DF2265"));
}

TEST(Kernel, RestoresBehindWhatTheListHolds)
{
    Bodies sent;
    sent.addBrick("brick");
    sent.list().add(makeWireBody());
    const std::string bytes = test::saved(sent.list());

    Bodies received;
    ASSERT_EQ(test::restoreError(bytes, received.list()), "");
    ASSERT_EQ(test::restoreError(bytes + "what comes behind is not looked at", received.list()), "");
    EXPECT_EQ(received.describe(), "brick 6 12 8\nAB 0 1 1\nbrick 6 12 8\nAB 0 1 1\n");

    ENTITY_LIST first;
    first.add(received.list()[0]);
    ENTITY_LIST firstSent;
    firstSent.add(sent.list()[0]);
    EXPECT_EQ(test::saved(first), test::saved(firstSent));
}

TEST(Kernel, SavesAPartAsOneThatStandsAlone)
{
    Bodies sent;
    BODY* const brick = sent.addBrick("brick");
    ENTITY_LIST faces;
    api_get_faces(brick, faces);
    ENTITY_LIST one;
    one.add(faces[3]);
    Bodies received;
    ASSERT_EQ(test::restoreError(test::saved(one), received.list()), "");
    EXPECT_TRUE(is_FACE(received.list()[0]));
    EXPECT_EQ(received.list()[0]->owner(), nullptr);
    EXPECT_EQ(received.describe(), " 1 4 4\n");
}

TEST(Kernel, RefusesDataCutAnywhere)
{
    Bodies sent;
    sent.addBrick("brick");
    const std::string bytes = test::saved(sent.list());
    Bodies received;
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        EXPECT_NE(test::restoreError(bytes.substr(0, size), received.list()), "") << size;
    }
    EXPECT_EQ(received.list().count(), 0);
}

TEST(Kernel, RefusesDataDamagedAnywhere)
{
    Bodies sent;
    sent.addBrick("brick");
    const std::string bytes = test::saved(sent.list());
    Bodies received;
    for (std::size_t at = 0; at < bytes.size(); ++at)
    {
        for (const int damage : {0x01, 0x80, 0xFF})
        {
            std::string damaged = bytes;
            damaged[at] = static_cast<char>(damaged[at] ^ damage);
            EXPECT_NE(test::restoreError(damaged, received.list()), "") << at;
        }
    }
    EXPECT_EQ(received.list().count(), 0);
}

TEST(Kernel, RefusesRecordsThatLie)
{
    const char* const beyond = "An entity reaches beyond the saved data";
    const std::pair<const char*, const char*> lies[] = {
        {"FFFFFFFF", beyond},
        {"01000000 01 00000000 00000000 FFFFFFFFFFFFFFFF", beyond},
        {"01000000 07 00000000 FFFFFFFF 00000000", beyond},
        {"01000000 00 00000000 00000000", "An entity is of no known type"},
        {"01000000 09 00000000 00000000", "An entity is of no known type"},
        {"00000000 01000000 00000000", "An entity refers to one that is not saved"},
        {"01000000 06 00000000 01000000 01000000 01000000 00000000", "An entity refers to one that is not saved"},
        // An edge that holds itself, and a vertex that holds its edge.
        {"01000000 06 01000000 01000000 00000000 01000000 00000000", "An entity holds a part that it can't hold"},
        {"02000000 06 02000000 01000000 01000000 07 01000000 01000000 00000000 01000000 00000000",
         "An entity holds a part that it can't hold"},
        // A loop in two faces.
        {"03000000 04 00000000 01000000 01000000 05 01000000 00000000 04 00000000 01000000 01000000"
         "02000000 00000000 02000000",
         "A part is held twice"},
        // Held without an owner; an owner that does not hold; an owner that is not there.
        {"02000000 06 00000000 01000000 01000000 07 00000000 00000000 01000000 00000000",
         "An entity's owner does not hold it"},
        {"02000000 06 00000000 00000000 07 01000000 00000000 02000000 00000000 01000000",
         "An entity's owner does not hold it"},
        {"01000000 07 FFFFFFFF 00000000 01000000 00000000", "An entity's owner does not hold it"},
        {"01000000 07 00000000 00000000 00000000", "An entity belongs to nothing"},
        {"01000000 07 00000000 00000000 02000000 00000000 00000000", "An entity is listed twice"},
        {"00000000 00000000 00", "The saved data are longer than their entities"},
    };
    Bodies received;
    for (const auto& [records, error] : lies)
    {
        EXPECT_EQ(test::restoreError(test::framed(test::bytes(records)), received.list()), error) << records;
    }
    // Sizes beyond all memory, where nothing else bounds them.
    const char* const endless = "454E544C4953541A 01000000 FFFFFFFFFFFFFFFF 01000000 01 00000000 00000000"
                                "FFFFFFFFFFFFFF0F 4142";
    EXPECT_EQ(test::restoreError(test::bytes(endless), received.list()), "The saved data end too early");
    EXPECT_EQ(received.list().count(), 0);
}

// What is read after its end, destroyed twice or left is for the sanitizers to see.
TEST(OwnedEntities, DestroyABodyListedBesideItsFace)
{
    for (const bool bodyFirst : {true, false})
    {
        Bodies sent;
        BODY* const brick = sent.addBrick("brick");
        ENTITY_LIST faces;
        api_get_faces(brick, faces);
        ENTITY_LIST list;
        list.add(bodyFirst ? brick : faces[2]);
        list.add(bodyFirst ? faces[2] : brick);
        OwnedEntities received;
        ASSERT_EQ(test::restoreError(test::saved(list), received.list()), "");
        ASSERT_EQ(received.list().count(), 2);
        EXPECT_EQ(received.list()[bodyFirst ? 1 : 0]->owner()->type(), EntityType::Shell);
    }
}

TEST(OwnedEntities, DestroyOnceWhatSeveralHold)
{
    OwnedEntities entities;
    auto* const edge = new EDGE;
    for (int i = 0; i < 2; ++i)
    {
        auto* const wire = new WIRE;
        wire->addPart(edge);
        entities.list().add(wire);
    }
}

// The body is destroyed by its own list, after the list of the face.
TEST(OwnedEntities, LeaveAPartWhoseOwnerIsNotListed)
{
    Bodies bodies;
    ENTITY_LIST faces;
    api_get_faces(bodies.addBrick("brick"), faces);
    {
        OwnedEntities one;
        one.list().add(faces[0]);
    }
    EXPECT_EQ(bodies.describe(), "brick 6 12 8\n");
}

TEST(Kernel, RefusesPartsThatDoNotFit)
{
    Bodies bodies;
    BODY* const brick = bodies.addBrick("");
    ENTITY_LIST faces;
    api_get_faces(brick, faces);
    auto* const shell = new SHELL;
    bodies.list().add(shell);
    EXPECT_THROW(shell->addPart(faces[0]), acis_exception);
    EXPECT_THROW(shell->addPart(brick), acis_exception);
    EXPECT_THROW(shell->addPart(nullptr), acis_exception);
    EXPECT_EQ(api_del_entity(faces[0]).ok(), 0);
}

TEST(Kernel, ListsEachEntityOnceAndCopesWithNull)
{
    Bodies bodies;
    BODY* const brick = bodies.addBrick("");
    ENTITY_LIST& list = bodies.list();
    EXPECT_EQ(list.add(brick), 0);
    EXPECT_EQ(list.add(nullptr), -1);
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list[1], nullptr);
    EXPECT_EQ(list[-1], nullptr);
    EXPECT_EQ(list.lookup(nullptr), -1);
    ENTITY_LIST faces;
    EXPECT_EQ(api_get_faces(nullptr, faces).ok(), 0);
    EXPECT_EQ(api_save_entity_list_file(nullptr, list, nullptr).ok(), 0);
    EXPECT_EQ(api_restore_entity_list_file(nullptr, list, nullptr).ok(), 0);
    EXPECT_FALSE(is_BODY(nullptr));
}

std::pair<ExcSubentId::EType, std::uint64_t> idOf(ENTITY* entity)
{
    ExcSubentId id(ExcSubentId::EType::Edge, 77);
    ExcSubentId::fillSubentId(id, entity);
    return {id.type(), id.index()};
}

TEST(SubentLookup, NamesBodiesAndTheirPartsByPosition)
{
    using EType = ExcSubentId::EType;
    Bodies sent;
    sent.addBrick("brick");
    Bodies bodies;
    ASSERT_EQ(test::restoreError(test::saved(sent.list()), bodies.list()), "");
    ENTITY* const brick = bodies.list()[0];
    ENTITY_LIST faces;
    ENTITY_LIST edges;
    ENTITY_LIST vertices;
    api_get_faces(brick, faces);
    api_get_edges(brick, edges);
    api_get_vertices(brick, vertices);

    EXPECT_EQ(idOf(brick), std::make_pair(EType::Body, std::uint64_t{0}));
    EXPECT_EQ(idOf(faces[5]), std::make_pair(EType::Face, std::uint64_t{5}));
    EXPECT_EQ(idOf(edges[11]), std::make_pair(EType::Edge, std::uint64_t{11}));
    EXPECT_EQ(idOf(vertices[7]), std::make_pair(EType::Vertex, std::uint64_t{7}));
    EXPECT_EQ(ExcSubentId::getOwnerBody(vertices[7]), brick);
    // The order in which the brick's faces meet them.
    ENTITY* const secondLoop = faces[1]->parts()[0];
    EXPECT_EQ(edges[4], secondLoop->parts()[0]);
    EXPECT_EQ(vertices[4], secondLoop->parts()[0]->parts()[0]);
}

TEST(SubentLookup, GivesTheHighestIndexToAPartThatIsNotListed)
{
    Bodies bodies;
    ENTITY_LIST faces;
    api_get_faces(bodies.addBrick(""), faces);
    KernelTrace trace;
    trace.fail("api_get_faces", "not listed");
    EXPECT_EQ(idOf(faces[0]), std::make_pair(ExcSubentId::EType::Face, std::numeric_limits<std::uint64_t>::max()));
}

TEST(SubentLookup, NamesNothingElse)
{
    const auto nothing = std::make_pair(ExcSubentId::EType::Null, std::uint64_t{0});
    Bodies bodies;
    ENTITY* const brick = bodies.addBrick("");
    auto* const wire = new WIRE;
    auto* const edge = new EDGE;
    wire->addPart(edge);
    bodies.list().add(wire);
    ENTITY_LIST faces;
    api_get_faces(brick, faces);

    EXPECT_EQ(idOf(nullptr), nothing);
    EXPECT_EQ(idOf(wire), nothing);
    EXPECT_EQ(idOf(edge), nothing);
    EXPECT_EQ(idOf(faces[0]->parts()[0]), nothing);
    EXPECT_EQ(ExcSubentId::getOwnerBody(nullptr), nullptr);
    EXPECT_EQ(ExcSubentId::getOwnerBody(brick), nullptr);
    EXPECT_EQ(ExcSubentId::getOwnerBody(edge), nullptr);
}

} // namespace
