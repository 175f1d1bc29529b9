#include "tests/full_rows/full_rows.h"
#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "vrx_api/vrx_api.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace vrx;
using test::FullRow;
using testing::Contains;
using testing::ElementsAre;

namespace
{

const FieldShape* fieldOf(const Shape& shape, wstring_view key)
{
    const auto found = std::find_if(shape.fields.begin(), shape.fields.end(),
                                    [key](const FieldShape& field) { return field.key == key; });
    return found == shape.fields.end() ? nullptr : &*found;
}

const Shape& shapeOf(const std::string& className, wstring_view key)
{
    static const Shape none;
    const ClassShape* const found = ClassShape::find(className);
    const FieldShape* const field = found == nullptr ? nullptr : fieldOf(found->shape(), key);
    EXPECT_NE(field, nullptr) << className << ' ' << mp::toNarrow(key);
    return field == nullptr ? none : field->shape;
}

// Every key that a class writes or reads is told, and no class is left out.
TEST(Shapes, TellTheKeysOfEveryClass)
{
    std::vector<std::string> untold;
    for (const FullRow& row : test::allFullRows())
    {
        const auto object = row.make();
        const ClassShape* const found = ClassShape::find(typeOf(*object));
        if (found == nullptr)
        {
            untold.push_back(row.title);
            continue;
        }
        const JsonDocument in = test::parsed(row.in);
        const JsonDocument out = test::parsed(row.out);
        EXPECT_EQ(found->shape().kind == EShape::Record, in.IsObject()) << row.title;
        if (!in.IsObject())
        {
            continue;
        }
        for (const auto& member : in.GetObject())
        {
            const FieldShape* const field = fieldOf(found->shape(), member.name.GetString());
            EXPECT_NE(field, nullptr) << row.title << ' ' << mp::toNarrow(member.name.GetString());
        }
        for (const auto& member : out.GetObject())
        {
            const FieldShape* const field = fieldOf(found->shape(), member.name.GetString());
            EXPECT_TRUE(field != nullptr && field->isWritten)
                << row.title << ' ' << mp::toNarrow(member.name.GetString());
        }
    }
    EXPECT_THAT(untold, ElementsAre("ExcPMIObject", "ExcPMIAnnotation", "ExcMfgPattern", "ExcMfgObject",
                                    "ExcMfgFeatureHole", "Command", "Result", "FerrantInfo"))
        << "bases and messages, for which the rows have classes of the tests";
}

void expectClosed(const Shape& shape, const std::string& className)
{
    EXPECT_TRUE(shape.kind != EShape::Any || className == "ExchangeObjectWrapper") << className;
    for (const std::type_info* const type : shape.classes)
    {
        EXPECT_NE(ClassShape::find(*type), nullptr) << className << " holds " << type->name();
    }
    for (const Shape& part : shape.parts)
    {
        expectClosed(part, className);
    }
    for (const FieldShape& field : shape.fields)
    {
        expectClosed(field.shape, className);
    }
}

TEST(Shapes, NameOnlyClassesThatAreTold)
{
    for (const ClassShape* const each : ClassShape::all())
    {
        expectClosed(each->shape(), each->name());
        EXPECT_EQ(ClassShape::find(each->name()), each);
    }
    for (const wstring& name : ExchangeObjectRegistry::instance().names())
    {
        const auto object = ExchangeObjectRegistry::instance().get(name);
        EXPECT_NE(ClassShape::find(typeOf(*object)), nullptr) << mp::toNarrow(name);
    }
    for (const char* const name : {"Command", "Result", "FerrantInfo", "ExcPMINote::Text", "imp::OptionsSTEP",
                                   "ExcUnitComponent<EMassUnitType>", "ExcMfgFeatureHoleType<ExcMfgSimpleHole>"})
    {
        EXPECT_NE(ClassShape::find(name), nullptr) << name;
    }
}

TEST(Shapes, TellWhenAKeyIsWrittenAndRead)
{
    const Shape& set = ClassShape::find("ExcPMIAnnotationSet")->shape();
    EXPECT_FALSE(fieldOf(set, WIDE("annotation_views"))->isWritten);
    EXPECT_FALSE(fieldOf(set, WIDE("views"))->isRead);
    EXPECT_FALSE(fieldOf(ClassShape::find("ExcPMIDatum")->shape(), WIDE("position"))->isRead);
    const Shape& result = ClassShape::find("Result")->shape();
    EXPECT_TRUE(fieldOf(result, WIDE("code"))->isRequired);
    EXPECT_FALSE(fieldOf(result, WIDE("message"))->isAlwaysWritten);
    EXPECT_TRUE(fieldOf(result, WIDE("is_finished"))->isAlwaysWritten);
    const Shape& features = ClassShape::find("ExcMfgData")->shape();
    EXPECT_EQ(fieldOf(features, WIDE("simple_holes"))->needs, WIDE("has_data"));
    EXPECT_TRUE(fieldOf(features, WIDE("has_data"))->needs.empty());
    const Shape& node = ClassShape::find("ExcVisuNode")->shape();
    EXPECT_TRUE(fieldOf(node, WIDE("child_nodes"))->isRead && fieldOf(node, WIDE("child_nodes"))->isWritten);
}

TEST(Shapes, TellWhatAValueIs)
{
    const Shape& units = shapeOf("ExcProductStructure", WIDE("units"));
    EXPECT_EQ(units.kind, EShape::Name);
    EXPECT_THAT(units.names, Contains(wstring_view(WIDE("millimeter"))));
    EXPECT_EQ(shapeOf("ExcEntity", WIDE("type")).otherNames, WIDE("fsp"));
    EXPECT_TRUE(shapeOf("ExcBlockGeometry", WIDE("shared_acis_buffer_name")).mayBeNull);
    EXPECT_FALSE(shapeOf("ExcVisuNode", WIDE("mesh")).mayBeNull) << "not written for nothing";

    const Shape& texts = shapeOf("ExcPMIDimension", WIDE("texts"));
    EXPECT_EQ(texts.kind, EShape::Tuple);
    EXPECT_EQ(texts.parts.size(), 7U);
    const Shape& colors = shapeOf("ExcVisuMaterial", WIDE("colors"));
    EXPECT_EQ(colors.kind, EShape::Map);
    EXPECT_EQ(colors.parts.at(0).size, 4U);
    EXPECT_EQ(ClassShape::find("ExcVector3d")->shape().size, 3U);
}

TEST(Shapes, TellWhatIdsAndIndicesMean)
{
    EXPECT_EQ(shapeOf("ExcBlock", WIDE("id")).role, ERole::Identity);
    const Shape& blockId = shapeOf("ExcBlockReference", WIDE("block_id"));
    EXPECT_EQ(blockId.role, ERole::Reference);
    EXPECT_EQ(blockId.space, EIdSpace::Block);
    const Shape& lines = shapeOf("ExcVisuEdge", WIDE("line_indices"));
    EXPECT_EQ(lines.role, ERole::Index);
    EXPECT_EQ(lines.indexed, WIDE("points"));
    EXPECT_EQ(lines.indexWidth, 3U);
}

// The class of a value that may be one of several.
TEST(Shapes, ChooseTheClassByTheValue)
{
    const auto chosen = [](const Shape& shape, const char* value, const char* holder) {
        const std::type_info* const type = shape.choose(test::parsed(value), test::parsed(holder));
        return type == nullptr ? "" : ClassShape::find(*type)->name();
    };
    const Shape& pattern = shapeOf("ExcMfgFeatureUnclassified", WIDE("pattern"));
    EXPECT_EQ(chosen(pattern, R"({"type":"circular"})", "{}"), "ExcMfgPatternCircular");
    EXPECT_EQ(chosen(pattern, R"({"type":"none"})", "{}"), "");
    EXPECT_THAT(shapeOf("ExcMfgPatternCircular", WIDE("type")).names, ElementsAre(wstring_view(WIDE("circular"))));
    const Shape& options = shapeOf("Command", WIDE("options"));
    EXPECT_EQ(chosen(options, "{}", R"({"command":"export"})"), "ExportOptionsImpl");
    EXPECT_EQ(chosen(options, "{}", R"({"command":"import","ferrant_interface":"legacy"})"), "LegacyImportOptionsImpl");
    EXPECT_EQ(chosen(options, "{}", R"({"command":"ping"})"), "");
    const Shape& settings = shapeOf("ImportOptionsImpl", WIDE("format_options")).parts.at(0);
    EXPECT_EQ(chosen(settings, R"({"operation_type":"import","format_type":"STEP"})", "[]"), "imp::OptionsSTEP");
}

} // namespace
