#include "tests/support/add_row.h"
#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <iterator>

using namespace vrx;
using test::addAllRow;
using test::addRow;
using test::enumRow;
using test::row;
using test::setAllRow;

namespace
{

class AnnotationRows : public test::ModelRows
{
};

// A default annotation with the keys of its class.
std::string annotation(const std::string& type, const std::string& keys)
{
    return R"({"type":")" + type +
           R"(","position":[0.0,0.0],"orientation":"horizontal","z_depth":0.0,"linked_elements":[],"leaders":[],)" +
           keys + "}";
}

std::string text(const std::string& bold = "false", const std::string& color = "[1.0,1.0,1.0,1.0]")
{
    return R"({"label":"","font_name":"","font_type":"simplex","fixed_pitch":false,"height":0.0,"bold":)" + bold +
           R"(,"italic":false,"underline":false,"strike_through":false,"overline":false,"ratio":0.0,"slant":0.0,)"
           R"("color":)" +
           color + "}";
}

std::string target(const std::string& zone = "[[0.0,0.0,0.0],[0.0,0.0,0.0]]")
{
    return annotation("datum_target",
                      R"("label":"","target_type":"unknown","has_diameter":false,"upper_text":"","lower_text":"",)"
                      R"("target_zone":)" +
                          zone);
}

std::string gdt(const std::string& more = "")
{
    return annotation("GDT", R"("tolerance_type":"unknown","tolerance_value_type":"none","tolerance_value":0.0,)"
                             R"("refine_tolerance":0.0,"rate_unit":[0.0,0.0],"proj_tol_zone_length":0.0,)"
                             R"("shift_value":0.0,"all_around":0.0,"note":"",)"
                             R"("zone_modifiers":["no_modifier","no_modifier"])" +
                                 more);
}

const char* const kNoVector = "[ERROR] Exchange vector/point (2D/3D) object should have a JSON array type.";
const char* const kComposite = R"(,"composite_data":{"tolerance_value_type":"none","tolerance_value":0.0,)"
                               R"("rate_unit":[0.0,0.0],"zone_modifiers":"no_modifier"})";

const test::ModelRow kRows[] = {
    row<ExcPMILeader>("LeaderDefault", "{}", R"({"points":[]})"),
    row<ExcPMINote>("NoteDefault", "{}", annotation("note", R"("texts":[],"is_flag_note":false,"is_noa":false)")),
    row<ExcPMINote>("NoteWritesNoAngleThatIsNotUsed", R"({"angle":0.5,"orientation":"vertical"})",
                    R"({"type":"note","position":[0.0,0.0],"orientation":"vertical","z_depth":0.0,)"
                    R"("linked_elements":[],"leaders":[],"texts":[],"is_flag_note":false,"is_noa":false})"),
    row<ExcPMINote::Text>("TextDefault", "{}", text()),
    row<ExcPMINote::Text>("TextReadsFalseAsBold", R"({"bold":false})", text("true")),
    row<ExcPMINote::Text>("TextColorEndsEarly", R"({"color":[0.5,0.25]})", text("false", "[0.5,0.25,1.0,1.0]")),
    row<ExcPMINote::Text>("TextColorEndsAtAnInteger", R"({"color":[0.5,0,0.5]})", text("false", "[0.5,1.0,1.0,1.0]")),
    row<ExcPMINote::Text>("TextColorIgnoresAFifth", R"({"color":[0.1,0.2,0.3,0.4,0.5]})",
                          text("false", "[0.1,0.2,0.3,0.4]")),

    row<ExcPMIDatumTarget>("TargetDefault", "{}", target()),
    row<ExcPMIDatumTarget>("TargetOfOnePoint", R"({"target_zone":[[1.0,2.0,3.0]]})",
                           target("[[1.0,2.0,3.0],[0.0,0.0,0.0]]")),
    row<ExcPMIDatumTarget>("TargetReadsBehindAWrongPoint", R"({"target_zone":[5,[1.0,2.0,3.0],[9.0]]})",
                           target("[[0.0,0.0,0.0],[1.0,2.0,3.0]]"), {kNoVector}),

    row<ExcPMIDatum>("DatumDefault", "{}", annotation("datum", R"("label":"","target_ids":[])")),
    row<ExcPMIDatum>("DatumPassesOverWrongIds", R"({"target_ids":["a",7,null,"b"]})",
                     annotation("datum", R"("label":"","target_ids":["a","b"])")),

    row<ExcPMIGDT>("GdtDefault", "{}", gdt()),
    row<ExcPMIGDT>("GdtOfACompositeWithoutFrame", R"({"composite_data":{}})", gdt(kComposite)),
    row<ExcPMIGDT>("GdtOfWrongSizes",
                   R"({"rate_unit":[1.5],"zone_modifiers":["common_zone","common_zone","common_zone"],)"
                   R"("composite_data":{"rate_unit":[1.5,2.5,3.5],"zone_modifiers":["common_zone","common_zone"]}})",
                   gdt(kComposite),
                   {"[WARNING] ExcPMIGDT: invalid size of rate_unit array",
                    "[WARNING] ExcPMIGDT: invalid size of zone_modifiers array",
                    "[WARNING] ExcPMIGDT: invalid size of composite rate_unit array."}),
    row<ExcPMIGDT>("GdtPointsAtADefaultFrame", R"({"ref_frame":5})",
                   gdt(R"(,"ref_frame":{"label":"","datum_refs":[]})"),
                   {"[ERROR] ExcPMIGDT::Frame object should have a JSON object type."}),
    row<ExcPMIGDT::Frame>("FrameKeepsTheNumberOfItsReferences", R"({"datum_refs":[null,{"modified_datums":[7]}]})",
                          R"({"label":"","datum_refs":[{"label":"","modified_datums":[]},{"label":"",)"
                          R"("modified_datums":[{"datum_id":"","tolerance_modifier":"no_modifier"}]}]})",
                          {"[ERROR] ExcPMIGDT::DatumRef object should have a JSON object type.",
                           "[ERROR] ExcPMIGDT::ModifiedDatum object should have a JSON object type."}),

    row<ExcPMIRoughness>(
        "RoughnessDefault", "{}",
        annotation("roughness", R"("obtention_type":"unsupported","applicability_type":"unsupported")")),
    row<ExcPMIRoughness>("RoughnessPassesOverWrongFields", R"({"fields":["a",7,"b"]})",
                         annotation("roughness", R"("obtention_type":"unsupported",)"
                                                 R"("applicability_type":"unsupported","fields":["a","b"])")),
};

TEST_P(AnnotationRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Pmi, AnnotationRows, testing::ValuesIn(kRows), AnnotationRows::nameOf);

const test::EnumRow kEnums[] = {
    enumRow<ExcPMINote>("EPMIOrientation", "orientation", &ExcPMINote::orientation, &ExcPMINote::setOrientation,
                        {"horizontal", "vertical", "parallel", "perpendicular", "dim_angle"}, "dim_angle"),
    enumRow("ExcPMINote::Text::EFontType", "font_type", &ExcPMINote::Text::fontType, &ExcPMINote::Text::setFontType,
            {"simplex", "din", "military", "ISO", "light_line", "century", "IGES_1001", "IGES_1002", "IGES_1003"},
            "IGES_1001"),
    enumRow("ExcPMIDatumTarget::EType", "target_type", &ExcPMIDatumTarget::targetType,
            &ExcPMIDatumTarget::setTargetType,
            {"unknown", "point", "line", "area_circular", "area_rectangular", "area_face", "feature", "user_defined"},
            "area_circular"),
    enumRow("ExcPMIGDT::EToleranceType", "tolerance_type", &ExcPMIGDT::toleranceType, &ExcPMIGDT::setToleranceType,
            {"unknown", "form_straightness", "form_flatness", "form_circularity", "form_cylindricity",
             "form_profile_any_line", "form_profile_any_surface", "orientation_parallelism",
             "orientation_perpendicularity", "orientation_angularity", "location_true_position",
             "location_concentricity", "location_coaxiality", "location_symmetry", "location_position_of_any_line",
             "Location_position_of_a_surface", "run_out_circular", "run_out_total"},
            "Location_position_of_a_surface"),
    enumRow("ExcPMIGDT::EToleranceValueType", "tolerance_value_type", &ExcPMIGDT::toleranceValueType,
            &ExcPMIGDT::setToleranceValueType, {"none", "diameter", "radius", "spherical", "square"}, "diameter"),
    enumRow("ExcPMIGDT::EToleranceModifier", "tolerance_modifier", &ExcPMIGDT::ModifiedDatum::modifier,
            &ExcPMIGDT::ModifiedDatum::setModifier,
            {"no_modifier", "material_condition_unsupported", "material_condition_no_modifier",
             "material_condition_maximum", "material_condition_least", "material_condition_regardless_of_feature_size",
             "tangent_plant_unsupported", "tangent_plant_non_tangent", "tangent_plant_tangent",
             "free_state_unsupported", "free_state_free", "free_state_not_free", "statistical_symbol", "common_zone"},
            "common_zone"),
    enumRow("ExcPMIRoughness::EObtentionType", "obtention_type", &ExcPMIRoughness::obtentionType,
            &ExcPMIRoughness::setObtentionType,
            {"unsupported", "not_defined", "matching_mandatory", "matching_forbidden"}, "matching_forbidden"),
    enumRow("ExcPMIRoughness::EApplicabilityType", "applicability_type", &ExcPMIRoughness::applicabilityType,
            &ExcPMIRoughness::setApplicabilityType,
            {"unsupported", "specified_surface_only", "all_part_surfaces", "basic_surface"}, "all_part_surfaces"),
};

class AnnotationEnums : public test::EnumRows
{
};

TEST_P(AnnotationEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Pmi, AnnotationEnums, testing::ValuesIn(kEnums), AnnotationEnums::nameOf);

const char* const kNullElement = "ExcPMIAnnotation: attempt to add null linked element";
const char* const kNullLeader = "ExcPMIAnnotation: attempt to add null PMI leader.";
const char* const kNullText = "ExcPMINote: attempt to add null text.";

const test::AddRow kAdds[] = {
    addRow<ExcPMINote>("ExcPMIAnnotation::addLinkedElement", &ExcPMIAnnotation::addLinkedElement, kNullElement),
    addAllRow<ExcPMINote>("ExcPMIAnnotation::addLinkedElements", &ExcPMIAnnotation::addLinkedElements, kNullElement),
    setAllRow<ExcPMINote>("ExcPMIAnnotation::setLinkedElements", &ExcPMIAnnotation::setLinkedElements, kNullElement),
    addRow<ExcPMINote>("ExcPMIAnnotation::addLeader", &ExcPMIAnnotation::addLeader, kNullLeader),
    addAllRow<ExcPMINote>("ExcPMIAnnotation::addLeaders", &ExcPMIAnnotation::addLeaders, kNullLeader),
    setAllRow<ExcPMINote>("ExcPMIAnnotation::setLeaders", &ExcPMIAnnotation::setLeaders, kNullLeader),
    addRow("ExcPMINote::addText", &ExcPMINote::addText, kNullText),
    addAllRow("ExcPMINote::addTexts", &ExcPMINote::addTexts, kNullText),
    setAllRow("ExcPMINote::setsTexts", &ExcPMINote::setsTexts, kNullText),
};

class AnnotationAdds : public test::AddRows
{
};

TEST_P(AnnotationAdds, RefuseNulls)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Pmi, AnnotationAdds, testing::ValuesIn(kAdds), AnnotationAdds::nameOf);

// An annotation of a type that no class of the library has.
class OtherAnnotation : public ExcPMIAnnotation
{
public:
    explicit OtherAnnotation(int type)
        : m_type(type)
    {
    }
    EPMIAnnotationType type() const override { return static_cast<EPMIAnnotationType>(m_type); }

private:
    int m_type;
};

TEST(Annotations, WriteTheNamesOfTheirTypes)
{
    const char* const names[] = {"unknown", "datum",     "datum_target", "note",      "flag_note",
                                 "NOA",     "roughness", "GDT",          "dimension", "unknown"};
    for (int number = 0; number < static_cast<int>(std::size(names)); ++number)
    {
        const JsonDocument document = test::parsed(test::written(OtherAnnotation(number)));
        EXPECT_EQ(document[WIDE("type")].GetString(), test::wide(names[number]));
    }
}

TEST(Annotations, HaveTheNumbersOfTheirTypes)
{
    const auto number = [](const ExcPMIAnnotation& annotation) { return static_cast<int>(annotation.type()); };
    EXPECT_EQ(number(ExcPMIDatum()), 1);
    EXPECT_EQ(number(ExcPMIDatumTarget()), 2);
    EXPECT_EQ(number(ExcPMIRoughness()), 6);
    EXPECT_EQ(number(ExcPMIGDT()), 7);
    EXPECT_EQ(number(ExcPMIDimension()), 8);
    ExcPMINote note;
    note.setFlagNote(true);
    note.setNOA(true);
    EXPECT_EQ(number(note), 3);
}

TEST(Annotations, NeitherWriteNorReadTheirNames)
{
    ExcPMINote note;
    note.setName(WIDE("n"));
    note.setId(WIDE("i"));
    note.setHidden(true);
    EXPECT_EQ(test::written(note), test::written(ExcPMINote()));
    test::readText(note, R"({"name":"other","id":"other","hidden":false})");
    EXPECT_EQ(note.name(), WIDE("n"));
    EXPECT_EQ(note.id(), WIDE("i"));
    EXPECT_TRUE(note.isHidden());
}

TEST(Annotations, ReadAnAngleThatIsNotUsed)
{
    EXPECT_EQ(test::readFrom<ExcPMINote>(R"({"angle":0.5})").angle(), 0.5);
}

TEST(Annotations, KeepWhatWrongArraysDoNotReset)
{
    using EModifier = ExcPMIGDT::EToleranceModifier;
    ExcPMIGDT gdt;
    double first = 0.0;
    double second = 0.0;
    gdt.setRateUnit(3.0, 4.0);
    test::readText(gdt, R"({"rate_unit":[1.5]})");
    gdt.rateUnits(first, second);
    EXPECT_EQ(first, 3.0);
    EXPECT_EQ(second, 4.0);
    test::readText(gdt, R"({"rate_unit":[1.5,2]})");
    gdt.rateUnits(first, second);
    EXPECT_EQ(first, 1.5);
    EXPECT_EQ(second, 0.0);

    EModifier value = EModifier::NoModifier;
    EModifier other = EModifier::NoModifier;
    gdt.setZoneModifiers(EModifier::StatisticalSymbol, EModifier::FreeStateFree);
    test::readText(gdt, R"({"zone_modifiers":["common_zone",3]})");
    gdt.zoneModifiers(value, other);
    EXPECT_EQ(value, EModifier::CommonZone);
    EXPECT_EQ(other, EModifier::FreeStateFree);
}

TEST(Annotations, AreNoLongerCompositeButKeepTheSecondLine)
{
    ExcPMIGDT gdt;
    gdt.setComposite(true);
    gdt.setCompositeRateUnits(5.5, 6.5);
    test::readText(gdt, R"({"composite_data":{"tolerance_value":1.5,"rate_unit":["x",7.5]}})");
    for (const char* const text : {"{}", R"({"composite_data":[]})"})
    {
        gdt.setComposite(true);
        test::readText(gdt, text);
        EXPECT_FALSE(gdt.isComposite()) << text;
    }
    double first = 5.5;
    double second = 0.0;
    gdt.compositeRateUnits(first, second);
    EXPECT_EQ(first, 0.0);
    EXPECT_EQ(second, 7.5);
    EXPECT_EQ(gdt.compositeToleranceValue(), 1.5);
}

} // namespace
