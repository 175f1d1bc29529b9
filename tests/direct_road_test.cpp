#include "tests/full_rows/full_rows.h"
#include "tests/support/form_changes.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "tests/support/two_roads.h"
#include "vrx_api/common/misc_data.h"
#include "vrx_api/common/vector.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/message_object.h"
#include "vrx_api/exchange/progress.h"
#include "vrx_api/json/direct.h"
#include "vrx_api/structure/block_reference.h"
#include "vrx_api/visualization/visu_mesh.h"
#include "vrx_api/visualization/visu_node.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <stdexcept>

using namespace vrx;
using test::FullRow;
using test::kDirectRoad;
using test::kTreeRoad;

namespace
{

// Sets the log's level for as long as it lives. Trace lines are made by trees alone.
class LogLevel
{
public:
    explicit LogLevel(int level) { test::LogFile::instance().open(level); }
    LogLevel(const LogLevel&) = delete;
    LogLevel& operator=(const LogLevel&) = delete;
    ~LogLevel() { test::LogFile::instance().open(); }
};

std::string formOf(std::string_view text)
{
    std::vector<char> form;
    JsonBinaryIO::write(form, test::parsed(text));
    return {form.begin(), form.end()};
}

class DirectRoad : public testing::TestWithParam<FullRow>
{
protected:
    static std::string fullForm() { return formOf(GetParam().in); }

    // False after the first difference, so that one fault does not fill the screen.
    static bool compare(const std::string& form)
    {
        const auto byTree = accountOf(kTreeRoad, *GetParam().make(), form);
        const auto direct = accountOf(kDirectRoad, *GetParam().make(), form);
        EXPECT_EQ(direct, byTree) << testing::PrintToString(form);
        return direct == byTree;
    }
};

TEST_P(DirectRoad, TakesTheFullText)
{
    for (const int level : {kolt::kFatal, kolt::kDebug, kolt::kTrace})
    {
        const LogLevel set(level);
        compare(fullForm());
    }
}

// A row is tried with as many forms as make about so many bytes, in even steps through all that there are: the large
// rows are made of classes that have rows of their own.
constexpr std::size_t kBytesOfARow = 100000;

std::size_t stepThrough(std::size_t forms, const std::string& form)
{
    return 1 + forms * form.size() / kBytesOfARow;
}

TEST_P(DirectRoad, TakesEachChange)
{
    const LogLevel set(kolt::kDebug);
    const std::string form = fullForm();
    const char* at = form.data();
    const test::FormValue full{BinaryTag::Array, {}, {test::takeValue(at)}};
    const std::vector<test::FormChange> changes = test::formChanges();
    test::FormValue counted = full;
    std::vector<test::FormPlace> places;
    addPlaces(counted, places);

    const std::size_t all = places.size() * changes.size();
    for (std::size_t i = 0; i < all; i += stepThrough(all, form))
    {
        test::FormValue changed = full;
        places.clear();
        addPlaces(changed, places);
        const test::FormPlace place = places[i / changes.size()];
        changes[i % changes.size()](*place.parent, place.index);
        std::string changedForm;
        for (const test::FormValue& value : changed.children)
        {
            append(changedForm, value);
        }
        ASSERT_TRUE(compare(changedForm)) << "change " << i % changes.size() << " of value " << i / changes.size();
    }
}

TEST_P(DirectRoad, RefusesDamagedBytesAlike)
{
    const LogLevel set(kolt::kDebug);
    const std::string form = fullForm();
    const std::size_t step = stepThrough(2 * form.size(), form);
    for (std::size_t at = 0; at < form.size(); at += step)
    {
        ASSERT_TRUE(compare(form.substr(0, at))) << at;
        std::string damaged = form;
        damaged[at] = static_cast<char>(damaged[at] ^ (1 << at % 8));
        ASSERT_TRUE(compare(damaged)) << at;
    }
}

// All but the messages, which are read from a text and never from a form.
std::vector<FullRow> rows()
{
    const std::set<std::string> messages = {"Command", "Result", "FerrantInfo"};
    std::vector<FullRow> rows;
    for (const FullRow& row : test::allFullRows())
    {
        if (messages.count(row.title) == 0)
        {
            rows.push_back(row);
        }
    }
    return rows;
}

// What never stands in a binary object has no way without a tree, and needs none: text objects and messages with their
// parts. Neither have the tests' own classes around an abstract base.
bool needsNoWay(const IJsonObject& object, const std::string& title)
{
    const std::set<std::string> others = {"ExcMfgFeatureHole", "ExcMfgObject", "ExcMfgPattern", "ExcPMIAnnotation",
                                          "ExcPMIObject",      "Format",       "ThirdpartyCore"};
    const auto* const exchanged = dynamic_cast<const IExchangeObject*>(&object);
    const bool isText = exchanged != nullptr && !exchanged->binary();
    return isText || title.find("Option") != std::string::npos || others.count(title) != 0;
}

TEST_P(DirectRoad, IsThereForWhatIsBinary)
{
    const auto object = GetParam().make();
    const IJsonObject& known = *object;
    const DirectWay& way = directWay(typeid(known));
    const bool direct = way.read != nullptr && way.size != nullptr && way.write != nullptr;
    EXPECT_TRUE(direct || needsNoWay(known, GetParam().title));
}

std::string nameOf(const testing::TestParamInfo<FullRow>& info)
{
    return test::testName(info.param.title);
}
INSTANTIATE_TEST_SUITE_P(Classes, DirectRoad, testing::ValuesIn(rows()), nameOf);

// Classes of a program's own.

// One that adds to what its base writes and reads, and counts how often it is asked.
template <class Base>
class Overriding : public Base
{
public:
    void readObject(const JsonValue& value) override
    {
        ++m_reads;
        Base::readObject(value);
        m_hasOwn = value.IsObject() && value.HasMember(WIDE("own"));
    }

    void writeObject(JsonValue& value, JsonAllocator& allocator) const override
    {
        ++m_writes;
        Base::writeObject(value, allocator);
        value.AddMember(WIDE("own"), JsonValue(7), allocator);
    }

    int reads() const { return m_reads; }
    int writes() const { return m_writes; }
    bool hasOwn() const { return m_hasOwn; }

private:
    int m_reads = 0;
    mutable int m_writes = 0;
    bool m_hasOwn = false;
};

template <class Base>
class Inheriting : public Base
{
};

class FailingFace : public ExcVisuFace
{
public:
    void readObject(const JsonValue&) override { throw std::out_of_range("can't be read"); }
    void writeObject(JsonValue&, JsonAllocator&) const override { throw std::out_of_range("can't be written"); }
};

// One that renames another face when it is asked.
class RenamingFace : public ExcVisuFace
{
public:
    explicit RenamingFace(const std::shared_ptr<ExcVisuFace>& other)
        : m_other(other)
    {
    }

    void writeObject(JsonValue& value, JsonAllocator& allocator) const override
    {
        m_other->setId(wstring(100000, 'n'));
        ExcVisuFace::writeObject(value, allocator);
    }

private:
    std::shared_ptr<ExcVisuFace> m_other;
};

// An exchange class, around objects of the library.
class OwnObject : public IExchangeObject
{
public:
    OwnObject() { m_mesh->addFaces({m_face, std::make_shared<Inheriting<ExcVisuFace>>()}); }

    void readObject(const JsonValue& value) override
    {
        m_mesh->readObject(value[WIDE("mesh")]);
        m_face->readObject(value[WIDE("face")]);
        m_point.readObject(value[WIDE("point")]);
    }

    void writeObject(JsonValue& value, JsonAllocator& allocator) const override
    {
        value.SetObject();
        const auto add = [&](const JsonValue::StringRefType& name, const IJsonObject& object) {
            JsonValue member;
            object.writeObject(member, allocator);
            value.AddMember(name, member, allocator);
        };
        add(WIDE("mesh"), *m_mesh);
        add(WIDE("face"), *m_face);
        add(WIDE("point"), m_point);
    }

    const wstring& objectName() const override
    {
        static const wstring name = WIDE("OwnObject");
        return name;
    }
    std::shared_ptr<IExchangeObject> clone() const override { return std::make_shared<OwnObject>(); }
    bool binary() const override { return true; }

private:
    std::shared_ptr<ExcVisuMesh> m_mesh = std::make_shared<ExcVisuMesh>();
    std::shared_ptr<ExcVisuFace> m_face = std::make_shared<Overriding<ExcVisuFace>>();
    ExcVector3d m_point{1.0, 2.0, 3.0};
};

std::shared_ptr<ExcVisuNode> nodeWith(const std::shared_ptr<ExcVisuFace>& face)
{
    const auto mesh = std::make_shared<ExcVisuMesh>();
    mesh->addFaces({std::make_shared<ExcVisuFace>(), face, std::make_shared<ExcVisuFace>()});
    const auto node = std::make_shared<ExcVisuNode>();
    node->setMesh(mesh);
    auto root = std::make_shared<ExcVisuNode>();
    root->setChildNodes({std::make_shared<ExcVisuNode>(), node});
    return root;
}

TEST(DirectRoadOfOwnClasses, AsksEachObjectOnceByItsVirtualOperation)
{
    const LogLevel set(kolt::kDebug);
    const auto face = std::make_shared<Overriding<ExcVisuFace>>();
    const auto root = nodeWith(face);
    const std::string direct = writtenBy(kDirectRoad, *root);
    EXPECT_EQ(face->writes(), 1);
    EXPECT_EQ(direct, writtenBy(kTreeRoad, *root));
    EXPECT_NE(direct, writtenBy(kTreeRoad, *nodeWith(std::make_shared<ExcVisuFace>())));

    const std::string form = writtenBy(kDirectRoad, *face);
    EXPECT_EQ(face->writes(), 3);
    kDirectRoad.read(*face, form.data(), form.size());
    EXPECT_EQ(face->reads(), 1);
    EXPECT_TRUE(face->hasOwn());
    EXPECT_EQ(writtenBy(kDirectRoad, *face), form);
}

TEST(DirectRoadOfOwnClasses, KnowsOneThatInheritsTheOperations)
{
    const LogLevel set(kolt::kDebug);
    const auto root = nodeWith(std::make_shared<Inheriting<ExcVisuFace>>());
    EXPECT_EQ(writtenBy(kDirectRoad, *root), writtenBy(kTreeRoad, *nodeWith(std::make_shared<ExcVisuFace>())));

    const std::string form = writtenBy(kTreeRoad, *root);
    Inheriting<ExcVisuNode> byTree;
    Inheriting<ExcVisuNode> direct;
    EXPECT_EQ(accountOf(kDirectRoad, direct, form), accountOf(kTreeRoad, byTree, form));
    EXPECT_EQ(direct.childNodes().size(), 4U);
}

TEST(DirectRoadOfOwnClasses, TakesAnExchangeClassAndWhatItHolds)
{
    for (const int level : {kolt::kDebug, kolt::kTrace})
    {
        const LogLevel set(level);
        const std::string form = writtenBy(kTreeRoad, OwnObject());
        OwnObject byTree;
        OwnObject direct;
        EXPECT_EQ(writtenBy(kDirectRoad, direct), form);
        EXPECT_EQ(accountOf(kDirectRoad, direct, form), accountOf(kTreeRoad, byTree, form));
    }
}

TEST(DirectRoadOfOwnClasses, HoldsWhatOneChangedInAnother)
{
    const LogLevel set(kolt::kDebug);
    const auto renamed = std::make_shared<ExcVisuFace>();
    ExcVisuMesh mesh;
    mesh.addFaces({renamed, std::make_shared<RenamingFace>(renamed)});
    const std::string form = writtenBy(kDirectRoad, mesh);
    EXPECT_TRUE(writtenBy(kTreeRoad, mesh) == form);
}

TEST(DirectRoadOfOwnClasses, PassesTheirErrorsOn)
{
    const LogLevel set(kolt::kDebug);
    const auto root = nodeWith(std::make_shared<FailingFace>());
    const std::string failure = writtenBy(kTreeRoad, *root);
    EXPECT_NE(failure.find("can't be written"), std::string::npos);
    EXPECT_EQ(writtenBy(kDirectRoad, *root), failure);
    Bytes kept{'k'};
    EXPECT_THROW(JsonBinaryIO::write(kept, *root), std::out_of_range);
    EXPECT_EQ(kept, Bytes{'k'});

    FailingFace byTree;
    FailingFace direct;
    const std::string form = formOf("{}");
    EXPECT_EQ(accountOf(kDirectRoad, direct, form), accountOf(kTreeRoad, byTree, form));
}

// A number before a long text must not be taken for the first of many.
TEST(DirectRoadOfBools, TakesFalseWhereTrueStood)
{
    const LogLevel set(kolt::kDebug);
    const std::string form = formOf(R"({"hidden":false})");
    ExcBlockReference reference;
    reference.setHidden(true);
    kDirectRoad.read(reference, form.data(), form.size());
    EXPECT_FALSE(reference.isHidden());
}

// Also when the search for the member before has passed it.
TEST(DirectRoadOfMembers, TakesTheFirstOfAName)
{
    const LogLevel set(kolt::kDebug);
    const std::string form = formOf(R"({"progress_max":1,"progress":5,"progress_max":2})");
    for (const test::BinaryRoad& road : {kTreeRoad, kDirectRoad})
    {
        ExcProgress progress;
        road.read(progress, form.data(), form.size());
        EXPECT_EQ(progress.progress(), 5);
        EXPECT_EQ(progress.progressMax(), 1);
    }
}

TEST(DirectRoadOfMessages, TakesBytesThatLieAtAnOddPlace)
{
    const LogLevel set(kolt::kDebug);
    const std::string form = formOf(R"({"message":"abc"})");
    const std::string odd = ' ' + form;
    ExcMessage message;
    kDirectRoad.read(message, odd.data() + 1, form.size());
    EXPECT_EQ(message.get(), WIDE("abc"));
}

TEST(DirectRoadOfArrays, ReservesForWhatIsThere)
{
    const std::string form = formOf("[7,\"" + std::string(10000, 'x') + "\"]");
    ExcMiscData data;
    kDirectRoad.read(data, form.data(), form.size());
    EXPECT_EQ(data.properties().size(), 2U);
    EXPECT_LE(data.properties().capacity() * sizeof(ExcMiscProperty), form.size());
}

TEST(DirectRoadOfNodes, IsAsDeepAsTheTreeOfNodes)
{
    const LogLevel set(kolt::kDebug);
    const auto root = std::make_shared<ExcVisuNode>();
    auto* deepest = root.get();
    for (int depth = 0; depth < 100000; ++depth)
    {
        const auto child = std::make_shared<ExcVisuNode>();
        deepest->addChildNode(child);
        deepest = child.get();
    }
    const std::string form = writtenBy(kTreeRoad, *root);
    EXPECT_TRUE(writtenBy(kDirectRoad, *root) == form);
    ExcVisuNode read;
    kDirectRoad.read(read, form.data(), form.size());
    EXPECT_TRUE(writtenBy(kTreeRoad, read) == form);
}

} // namespace
