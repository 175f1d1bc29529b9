#include "checking/tree_checker.h"
#include "mp/narrow.h"
#include "tests/full_rows/full_rows.h"
#include "tests/support/json_text.h"

#include <gmock/gmock.h>

#include <set>
#include <string>
#include <vector>

using checking::ECode;
using testing::ElementsAre;
using testing::IsEmpty;
using vrx::ClassShape;

namespace
{

// Checks objects of one import; gives "code pointer" of each finding.
class Checked
{
public:
    Checked& object(const std::string& className, std::string_view text)
    {
        const ClassShape* const shape = ClassShape::find(className);
        if (shape == nullptr)
        {
            ADD_FAILURE() << className;
            return *this;
        }
        m_trees.check(test::parsed(text), *shape, ++m_number);
        m_ids.endObject();
        return *this;
    }

    std::vector<std::string> end()
    {
        m_ids.endImport(true);
        return m_lines;
    }

    checking::KnownKeys known;
    std::vector<std::string> sentences;

private:
    void give(const checking::Finding& finding)
    {
        m_lines.push_back(std::string(nameOf(finding.code)) + ' ' + mp::toNarrow(finding.place.pointer));
        sentences.push_back(finding.sentence);
    }

    std::size_t m_number = 0;
    std::vector<std::string> m_lines;
    checking::Findings m_findings{[this](const checking::Finding& finding) { give(finding); }};
    checking::Ids m_ids{m_findings};
    checking::TreeChecker m_trees{known, m_findings, m_ids};
};

std::vector<std::string> check(const std::string& className, std::string_view text)
{
    return Checked().object(className, text).end();
}

const ClassShape* shapeOf(const test::FullRow& row)
{
    const auto object = row.make();
    const ClassShape* const own = ClassShape::find(vrx::typeOf(*object));
    return own != nullptr ? own : ClassShape::find(row.title);
}

// In these texts every number is another one, so that ids and indices lead nowhere.
bool isOfPlace(const std::string& line)
{
    const std::set<std::string> codes = {"dangling-id", "duplicate-id", "index-outside", "structure-cycle"};
    return codes.count(line.substr(0, line.find(' '))) != 0;
}

TEST(Check, FindsNothingWrongInTheFullTexts)
{
    std::vector<std::string> withoutShape;
    for (const test::FullRow& row : test::allFullRows())
    {
        const ClassShape* const shape = shapeOf(row);
        if (shape == nullptr)
        {
            withoutShape.push_back(row.title);
            continue;
        }
        for (const std::string& text : {row.in, row.out})
        {
            std::vector<std::string> lines = check(shape->name(), text);
            lines.erase(std::remove_if(lines.begin(), lines.end(), isOfPlace), lines.end());
            EXPECT_THAT(lines, IsEmpty()) << row.title;
        }
    }
    EXPECT_THAT(withoutShape, ElementsAre("ExcPMIObject", "ExcPMIAnnotation", "ExcMfgPattern", "ExcMfgObject",
                                          "ExcMfgFeatureHole")); // mere bases
}

TEST(Check, FindsEachDefect)
{
    struct Row
    {
        const char* className;
        const char* text;
        const char* finding;
    };
    const Row rows[] = {
        {"ExcLog", R"({"message":"m","mesage":"m"})", "unknown-key /mesage"},
        {"ExcLog", R"({"message":"m","a/b~c":{"message":1}})", "unknown-key /a~1b~0c"},
        {"ExcLog", R"({"message":"m","message":1})", "duplicate-key /message"},
        {"ExcLog", R"({"message":null})", "wrong-kind /message"},
        {"ExcLog", R"([])", "wrong-kind "},
        {"ExcMiscData", R"([{"name":"a","type":"integer","value":1}])", "wrong-kind /0/value"},
        {"ExcVector3d", R"([1.0,2,3.0])", "wrong-number /1"},
        {"ExcVector3d", R"([1.0,2.0])", "wrong-size "},
        {"ExcVector3d", R"([1.0,2.0,"3"])", "wrong-kind /2"},
        {"ExcProgress", R"({"progress":1.0})", "wrong-number /progress"},
        {"ExcProgress", R"({"progress":3000000000})", "wrong-number /progress"},
        {"ExcBlock", R"({"id":-1})", "wrong-number /id"},
        {"ExcColor", R"({"rgb":[1,2,3],"alpha":4294967296})", "wrong-number /alpha"},
        {"ExcColor", R"({"rgb":[1,2,3,4]})", "wrong-size /rgb"},
        {"ExcSubentId", R"({"type":"q","index":1})", "unknown-name /type"},
        {"ExcPMILeader", R"({"points":[[1.0,2.0],[1.0,2.0,3.0]]})", "wrong-size /points/1"},
        {"ExcPMIDimension", R"({"line":[[1.0,2.0]]})", "wrong-size /line"},
        {"ExcVisuMaterial", R"({"colors":{"green":[1.0,2.0,3.0,4.0]}})", "unknown-name /colors/green"},
        {"ExcVisuMaterial", R"({"colors":{"diffuse":[1.0,2.0,3.0]}})", "wrong-size /colors/diffuse"},
        {"ExcVisuNode", R"({"is_leaf":false,"child_nodes":[{},{"is_leaf":0}]})", "wrong-kind /child_nodes/1/is_leaf"},
        {"ExcVisuFace", R"({"vertices":[0.0,0.0,0.0],"polygons":[{"type":1,"indices":[0,0,1]}]})",
         "index-outside /polygons/0/indices/2"},
        {"ExcVisuEdge", R"({"points":[0.0,0.0,0.0],"line_indices":[0,-1]})", "index-outside /line_indices/1"},
        {"ExcVisuEdge", R"({"line_indices":[0]})", "index-outside /line_indices/0"},
        {"ExcMfgFeatureUnclassified", R"({"pattern":{"is_base":true}})", "unknown-object /pattern"},
        {"ExcMfgData", R"({"has_data":false,"simple_holes":[{"id":"x"}]})", "not-read /simple_holes"},
        {"Command", R"({"ferrant_interface":"connect"})", "missing-key "},
        {"Command", R"({"command":"import","options":{"file":7}})", "wrong-kind /options/file"},
        {"Command", R"({"command":"export","options":{"file":"f","geometry_flags":1.5}})",
         "wrong-number /options/geometry_flags"},
        {"Command",
         R"({"command":"import","options":{"file":"f","format_options":)"
         R"([{"operation_type":"import","format_type":"JT","x":1}]}})",
         "unknown-key /options/format_options/0/x"},
        {"Result", R"({"code":"fine"})", "unknown-name /code"},
        {"ExchangeObjectWrapper", R"({"exchange_object_name":"exc_log"})", "missing-key "},
        {"ExcProductStructure", R"({"blocks":[{"id":1},{"id":2},{"id":1}]})", "duplicate-id /blocks/2/id"},
        {"ExcProductStructure", R"({"blocks":[{"id":1}],"root_block_references":[{"block_id":2},{"block_id":2}]})",
         "dangling-id /root_block_references/0/block_id"},
        {"ExcProductStructure",
         R"({"blocks":[{"block_references":[{"block_id":2}],"id":1},{"id":2,"block_references":[{"block_id":3}]},)"
         R"({"id":3,"block_references":[{"block_id":1},{"block_id":1}]}]})",
         "structure-cycle /blocks/2/block_references/0/block_id"},
        {"ExcProductStructure", R"({"blocks":[],"root_block_references":[{"block_id":5}]})",
         "dangling-id /root_block_references/0/block_id"},
        {"ExcMechanicalMiscData", R"({"layer_filters":[{"layer_id":[0,5]}]})",
         "dangling-id /layer_filters/0/layer_id/1"},
        {"ExcMechanicalMiscData", R"({"layers":[{"id":0}],"layer_filters":[{"layer_id":[0,5]}]})",
         "dangling-id /layer_filters/0/layer_id/1"},
        {"ExcPMIAnnotationView",
         R"({"datum":[{"label":"A"}],"GDTs":[{"ref_frame":{"label":"f","datum_refs":[{"label":"A-C"}]}}]})",
         "dangling-id /GDTs/0/ref_frame/datum_refs/0/label"},
    };
    for (const Row& row : rows)
    {
        EXPECT_THAT(check(row.className, row.text), ElementsAre(row.finding)) << row.text;
    }
}

TEST(Check, TellsNothingOfHonestData)
{
    struct Row
    {
        const char* className;
        const char* text;
    };
    const Row rows[] = {
        // Nothing is written as null, and by 0 or an empty text.
        {"ExcVisuCapture", R"({"clipping_plane":null})"},
        {"ExcProductStructure", R"({"blocks":[{"id":1}],"root_block_references":[{"block_id":0},{"block_id":1}]})"},
        // One part in two places.
        {"ExcProductStructure", R"({"blocks":[{"id":1},{"id":2,"block_references":[{"block_id":1},{"block_id":1}]}]})"},
        // What is named was not sent.
        {"ExcBlockMechanicalData", R"({"block_id":7})"},
        {"ExcVisuCapture", R"({"annotation_ids":["a"]})"},
        {"ExcPMIAnnotationView",
         R"({"datum":[{"label":"A"},{"label":"B"},{"label":"A"}],)"
         R"("GDTs":[{"ref_frame":{"datum_refs":[{"label":"A-B"},{"label":"A"},{"label":""}]}}]})"},
        {"ExcVisualizationData", R"({"scene_root_nodes":[{"pmi":{"id":"a","mechanical_id":"a"}},)"
                                 R"({"pmi":{"id":"a","mechanical_id":"a"}}],"captures":[{"annotation_ids":["a"]}]})"},
        {"Command", R"({"command":"ping"})"},
        {"ExcMfgFeatureUnclassified", R"({"pattern":{"type":"none"}})"},
        {"ExcMfgData", R"({"simple_holes":[]})"},
    };
    for (const Row& row : rows)
    {
        EXPECT_THAT(check(row.className, row.text), IsEmpty()) << row.text;
    }
}

TEST(Check, FollowsIdsThroughAnImport)
{
    Checked checked;
    checked.object("ExcBlockVisualization", R"({"block_id":2})")
        .object("ExcBlockVisualization", R"({"block_id":3})")
        .object("ExcMechanicalMiscData", R"({"layers":[{"id":5}]})")
        .object("ExcMechanicalMiscData", R"({"layers":[{"id":5}],"layer_filters":[{"layer_id":[5]}]})")
        .object("ExcProductStructure", R"({"blocks":[{"id":1},{"id":2}]})");
    EXPECT_THAT(checked.end(), ElementsAre("dangling-id /block_id"));
    EXPECT_THAT(checked.sentences, ElementsAre("there is no block 3"));
}

TEST(Check, AnnotationsThatNoSceneDrawsAreNotMissed)
{
    Checked checked;
    checked.object("ExcVisuPMI", R"({"id":"a","mechanical_id":"b"})")
        .object("ExcPMICapture", R"({"annotation_ids":["b","c"]})")
        .object("ExcVisuCapture", R"({"annotation_ids":["b","d"]})");
    EXPECT_THAT(checked.end(), ElementsAre("dangling-id /annotation_ids/1"));
    EXPECT_THAT(checked.sentences, ElementsAre(R"(there is no annotation "d")"));
}

TEST(Check, KnowsTheKeysThatItWasTold)
{
    Checked checked;
    checked.known.add("ExcPMIGDT/unit");
    checked.known.add("exc_log/level");
    checked.object("ExcPMIGDT", R"({"unit":"mm"})")
        .object("ExcLog", R"({"level":1})")
        .object("ExcLog", R"({"unit":1})");
    EXPECT_THAT(checked.end(), ElementsAre("unknown-key /unit"));
}

TEST(Check, DepthIsNoDanger)
{
    constexpr int kDeep = 300'000;
    std::string text;
    for (int i = 0; i < kDeep; ++i)
    {
        text += R"({"child_nodes":[)";
    }
    text += R"({"is_leaf":1})";
    for (int i = 0; i < kDeep; ++i)
    {
        text += "]}";
    }
    std::string place;
    for (int i = 0; i < 10; ++i)
    {
        place += "/child_nodes/0";
    }
    place += "/...";
    for (int i = 0; i < 9; ++i)
    {
        place += "/0/child_nodes";
    }
    EXPECT_THAT(check("ExcVisuNode", text), ElementsAre("wrong-kind " + place + "/0/is_leaf"));

    const std::string nested = R"({"message":"m","x":)" + std::string(kDeep, '[') + std::string(kDeep, ']') + '}';
    EXPECT_THAT(check("ExcLog", nested), ElementsAre("unknown-key /x"));
}

TEST(Check, NamesInSentencesAreHarmless)
{
    Checked checked;
    checked.object("ExcSubentId", R"({"type":"\u001B[2J"})").end();
    ASSERT_EQ(checked.sentences.size(), 1U);
    EXPECT_THAT(checked.sentences[0], testing::HasSubstr(R"(\u001B[2J)"));
}

TEST(Check, TellsSomeOfManyAndHowManyMore)
{
    std::vector<std::string> given;
    checking::Findings findings(
        [&given](const checking::Finding& finding) {
            given.push_back(std::string(nameOf(finding.code)) + ": " + finding.sentence);
        },
        {ECode::WrongSize}, 2);
    for (int i = 0; i < 5; ++i)
    {
        findings.add(ECode::WrongKind, [] { return std::pair(checking::Place(), std::string("one")); });
        findings.add(ECode::WrongSize, [] { return std::pair(checking::Place(), std::string("other")); });
    }
    findings.endMessage(1);
    EXPECT_THAT(given, ElementsAre("wrong-kind: one", "wrong-kind: one", "wrong-kind: 3 more of this"));
    EXPECT_EQ(findings.count(), 5U);
}

} // namespace
