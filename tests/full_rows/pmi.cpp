#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

using namespace vrx;

namespace test
{

namespace
{

// Bases, to be read and written by themselves.
struct BareObject : public ExcPMIObject
{
};

struct BareAnnotation : public ExcPMIAnnotation
{
    EPMIAnnotationType type() const override { return EPMIAnnotationType::Unknown; }
};

const std::string kLeader = R"({"points":[[1.5,2.5],[3.5,4.5]]})";

// An annotation with the keys of its class.
std::string annotation(const std::string& type, const std::string& keys)
{
    return R"({"type":")" + type +
           R"(","position":[1.5,2.5],"orientation":"dim_angle","angle":0.5,"z_depth":3.5,"linked_elements":[)" +
           kEntityText + R"(],"leaders":[)" + kLeader + "]" + (keys.empty() ? "" : ",") + keys + "}";
}

// What is written of a class that does not take the keys of its base back.
std::string withoutBase(const std::string& type, const std::string& keys)
{
    return R"({"type":")" + type +
           R"(","position":[0.0,0.0],"orientation":"horizontal","z_depth":0.0,"linked_elements":[],"leaders":[],)" +
           keys + "}";
}

const std::string kText =
    R"({"label":"l","font_name":"f","font_type":"IGES_1001","fixed_pitch":true,"height":2.5,"bold":true,)"
    R"("italic":true,"underline":true,"strike_through":true,"overline":true,"ratio":0.5,"slant":1.5,)"
    R"("color":[0.25,0.5,0.75,0.5]})";
const std::string kNote = annotation("note", R"("texts":[)" + kText + R"(],"is_flag_note":true,"is_noa":true)");

const std::string kDatumKeys = R"("label":"A","target_ids":["t","u"])";
const std::string kDatum = annotation("datum", kDatumKeys);
const std::string kDatumWritten = withoutBase("datum", kDatumKeys);
const std::string kDatumTarget =
    annotation("datum_target", R"("label":"A1","target_type":"area_face","has_diameter":true,"upper_text":"u",)"
                               R"("lower_text":"l","target_zone":[[1.5,2.5,3.5],[4.5,5.5,6.5]])");

const std::string kModifiedDatum = R"({"datum_id":"d","tolerance_modifier":"material_condition_least"})";
const std::string kDatumRef = R"({"label":"A-B","modified_datums":[)" + kModifiedDatum + "]}";
const std::string kFrame = R"({"label":"f","datum_refs":[)" + kDatumRef + "]}";
const std::string kGDTKeys =
    R"("tolerance_type":"run_out_total","tolerance_value_type":"square","tolerance_value":0.5,"refine_tolerance":1.5,)"
    R"("rate_unit":[2.5,3.5],"proj_tol_zone_length":4.5,"shift_value":5.5,"all_around":6.5,"note":"n",)"
    R"("zone_modifiers":["common_zone","statistical_symbol"],"ref_frame":)" +
    kFrame +
    R"(,"composite_data":{"tolerance_value_type":"radius","tolerance_value":7.5,"rate_unit":[8.5,9.5],)"
    R"("zone_modifiers":"free_state_free","ref_frame":)" +
    kFrame + "}";
const std::string kGDT = annotation("GDT", kGDTKeys);
const std::string kGDTWritten = withoutBase("GDT", kGDTKeys);

// The symbol of the end is read into the start.
std::string dimension(const std::string& arrows)
{
    return annotation(
        "dimension",
        R"("main_type":"basic","sub_type":"fillet","coord":[1.5,2.5,3.5],"value":4.5,"unit":"f_i_f64",)"
        R"("value_precision":0.5,"tolerance_precision_value":0.25,"numerical_tolerance":[-0.5,0.5],)"
        R"("alphanumerical_tolerance":["g6","H7"],"texts":["p","s","b","a","u","l","w"],"fake_numerical_value":5.5,)"
        R"("fake_alphanumerical_value":"f","is_driving":true,"line":[[1.5,2.5],[3.5,4.5]],"arrows":)" +
            arrows + R"(,"is_symbol_outside":true)");
}

const std::string kDimension = dimension(R"(["cross","wave"])");
const std::string kDimensionWritten = dimension(R"(["wave","not_used"])");

const std::string kRoughness =
    annotation("roughness", R"("obtention_type":"matching_mandatory","applicability_type":"basic_surface",)"
                            R"("fields":["Ra 3.2","b"])");

std::string view(const std::string& datum, const std::string& gdt, const std::string& dimension)
{
    return R"({"origin":[1.5,2.5,3.5],"u":[1.0,0.0,0.0],"v":[0.0,1.0,0.0],"notes":[)" + kNote + R"(],"datum":[)" +
           datum + R"(],"datum_targets":[)" + kDatumTarget + R"(],"GDTs":[)" + gdt + R"(],"dimensions":[)" + dimension +
           R"(],"roughness":[)" + kRoughness + "]}";
}

const std::string kView = view(kDatum, kGDT, kDimension);
const std::string kViewWritten = view(kDatumWritten, kGDTWritten, kDimensionWritten);

const std::string kCapture =
    R"({"name":"n","id":"i","hidden":true,"capture_hidden":true,"current":true,"hidden_text":"h","camera":)" +
    kCameraText +
    R"(,"clipping_plane":{"plane_coefficients":[1.0,2.0,3.0,4.0]},"annotation_ids":["a","b"],)"
    R"("constructed_geometry":[)" +
    kEntityText + R"(],"bodies":[)" + kEntityText + R"(],"manage_hide_show":true})";

std::string annotationSet(const std::string& views)
{
    return R"({"block_id":18446744073709551615,"name":"n","hidden":true,"standart":"ISO",)" + views +
           R"(,"captures":[)" + kCapture + R"(],"constructed_geometry":[)" + kEntityText + "]}";
}

const std::string kSet = annotationSet(R"("annotation_views":[)" + kView + "]");
const std::string kSetWritten = annotationSet(R"("views":[)" + kViewWritten + "]");

std::string root(const std::string& set)
{
    return R"({"pmi_data":[)" + set + R"(],"log_file":"l"})";
}

} // namespace

std::vector<FullRow> pmiRows()
{
    // A reader goes by the class and not by the type, and takes nothing of the base of a datum and of a GDT.
    const FullRow::Keys kType = {"type"};
    const FullRow::Keys kBase = {"type", "position", "orientation", "z_depth", "linked_elements", "leaders"};
    return {
        fullRow<BareObject>("ExcPMIObject", R"({"name":"n","id":"i","hidden":true})"),
        fullRow<BareAnnotation>("ExcPMIAnnotation", annotation("unknown", "")).governedBy({"orientation"}).fixes(kType),
        fullRow<ExcPMILeader>("ExcPMILeader", kLeader).appends({"points"}),
        fullRow<ExcPMINote::Text>("ExcPMINote::Text", kText),
        fullRow<ExcPMINote>("ExcPMINote", kNote).governedBy({"orientation"}).fixes(kType),
        fullRow<ExcPMIDatum>("ExcPMIDatum", kDatum).writes(kDatumWritten).fixes(kBase),
        fullRow<ExcPMIDatumTarget>("ExcPMIDatumTarget", kDatumTarget).governedBy({"orientation"}).fixes(kType),
        fullRow<ExcPMIGDT::ModifiedDatum>("ExcPMIGDT::ModifiedDatum", kModifiedDatum),
        fullRow<ExcPMIGDT::DatumRef>("ExcPMIGDT::DatumRef", kDatumRef),
        fullRow<ExcPMIGDT::Frame>("ExcPMIGDT::Frame", kFrame),
        fullRow<ExcPMIGDT>("ExcPMIGDT", kGDT)
            .writes(kGDTWritten)
            .fixes(kBase)
            .loudAbout({"rate_unit", "zone_modifiers"})
            .keeps({"zone_modifiers"}),
        fullRow<ExcPMIDimension>("ExcPMIDimension", kDimension)
            .writes(kDimensionWritten)
            .governedBy({"orientation"})
            .fixes(kType)
            .loudAbout({"numerical_tolerance", "alphanumerical_tolerance", "texts", "line", "arrows"})
            .keeps({"alphanumerical_tolerance", "texts", "arrows"}),
        fullRow<ExcPMIRoughness>("ExcPMIRoughness", kRoughness).governedBy({"orientation"}).fixes(kType),
        fullRow<ExcPMIAnnotationView>("ExcPMIAnnotationView", kView).writes(kViewWritten),
        fullRow<ExcPMICapture>("ExcPMICapture", kCapture),
        fullRow<ExcPMIAnnotationSet>("ExcPMIAnnotationSet", kSet)
            .writes(kSetWritten)
            .governedBy({"annotation_views"})
            .fixes({"views"}),
        fullRow<ExcPMIData>("ExcPMIData", "[" + kSet + "]")
            .writes("[" + kSetWritten + "]")
            .says("ExcPMIData object should have a JSON array type."),
        fullRow<ExcRootMechanicalData>("ExcRootMechanicalData", root(kSet))
            .writes(root(kSetWritten))
            .nests({"pmi_data"}),
    };
}

} // namespace test
