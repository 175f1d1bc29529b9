#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

using namespace vrx;

namespace test
{

namespace
{

// Bases, to be read and written by themselves.
struct BareObject : public ExcMfgObject
{
};

struct BareFeatureHole : public ExcMfgFeatureHole
{
};

struct BarePattern : public ExcMfgPattern
{
    EType type() const override { return EType::None; }
};

} // namespace

std::vector<FullRow> manufacturingRows()
{
    const std::string entities = "[" + kEntityText + "]";
    const FullRow::Keys pairs = {"visible_instances", "deactivated_instances"};
    const std::string instance = R"({"is_base":true,"limiting":)" + entities + R"(,"defining":)" + entities + "}";
    const std::string rectangular =
        R"({"type":"rectangular","anchor_point":[1.0,2.0,3.0],"align_primary_dir":[4.0,5.0,6.0],)"
        R"("align_secondary_dir":[7.0,8.0,9.0],"primary_inst_count":10,"secondary_inst_count":-11,)"
        R"("primary_spacing":12.5,"secondary_spacing":13.5,"base_instance":)" +
        instance + R"(,"simplified":true,"visible_instances":[[1,2],[3,4]],"deactivated_instances":[[5,-6]]})";
    const std::string circular =
        R"({"type":"circular","anchor_point":[1.0,2.0,3.0],"center_of_rotation":[4.0,5.0,6.0],)"
        R"("axis_of_rotation":[7.0,8.0,9.0],"axial_inst_count":10,"radial_inst_count":11,"axial_dist_degrees":12.5,)"
        R"("radial_dist":13.5,"fixed_rot_orient":true,"base_instance":)" +
        instance + R"(,"simplified":true,"visible_instances":[[1,2],[3,4]],"deactivated_instances":[[5,-6]]})";
    const std::string userDefined =
        R"({"type":"user_defined","anchor_point":[1.0,2.0,3.0],"base_instance":)" + instance +
        R"(,"instance_positions":[[4.0,5.0,6.0],[7.0,8.0,9.0]],"deactivated_positions":[[-1.0,0.0,0.5]]})";

    const std::string threading =
        R"("diameter":1.5,"depth":2.5,"pitch":3.5,"orientation":"right_handed","designation":"d",)"
        R"("designation_system_type":"british")";
    const std::string thread =
        "{" + threading + R"(,"support_diameter":4.5,"support_depth":5.5,"bottom_type":"support_up_to_plane"})";
    const std::string holeThread = "{" + threading + R"(,"standart":"s","min_tol":-0.5,"max_tol":0.25})";
    const std::string hole =
        R"("name":"n","primary_diameter":1.5,"primary_diameter_max_tol":2.5,"primary_diameter_min_tol":3.5,)"
        R"("primary_depth":4.5,"tip_angle_degrees":5.5,"bottom_limit_extent_type":"up_to_next",)"
        R"("center":[1.0,2.0,3.0],"direction":[4.0,5.0,6.0],"hole_thread":)" +
        holeThread;
    const std::string widened = "{" + hole + R"(,"diameter":6.5,"max_tol":7.5,"min_tol":8.5)";
    const std::string simpleHole = "{" + hole + "}";
    const std::string taperHole = "{" + hole + R"(,"angle":6.5})";
    const std::string counterBoreHole = widened + R"(,"depth":9.5})";
    const std::string counterSinkHole = widened + R"(,"angle":9.5})";
    const std::string counterDrillHole = widened + R"(,"depth":9.5,"sink_diameter":10.5,"angle":11.5})";

    const std::string object = R"("id":"i","linked_elements":)" + entities;
    const std::string feature = object + R"(,"name":"n","pattern":)" + rectangular;
    const std::string featureThread = "{" + feature + R"(,"thread_data":)" + thread + R"(,"side_faces":)" + entities +
                                      R"(,"top_faces":)" + entities + R"(,"bottom_faces":)" + entities + "}";
    const std::string featureHole = R"("limiting":)" + entities + R"(,"defining":)" + entities;
    const auto featureHoleOf = [&](const std::string& data) {
        return "{" + featureHole + R"(,"hole_data":)" + data + "}";
    };
    const std::string data =
        R"({"has_data":true,"simple_holes":[)" + featureHoleOf(simpleHole) + R"(],"taper_holes":[)" +
        featureHoleOf(taperHole) + R"(],"counter_bore_holes":[)" + featureHoleOf(counterBoreHole) +
        R"(],"counter_sink_holes":[)" + featureHoleOf(counterSinkHole) + R"(],"counter_drill_holes":[)" +
        featureHoleOf(counterDrillHole) + R"(],"internal_threads":[)" + featureThread + R"(],"external_threads":[)" +
        featureThread + R"(],"unclassified_features":[{)" + feature + "}]}";

    return {
        fullRow<BarePattern>("ExcMfgPattern", R"({"type":"none"})").fixes({"type"}),
        fullRow<ExcMfgPattern::Instance>("ExcMfgPattern::Instance", instance),
        fullRow<ExcMfgPatternRectangular>("ExcMfgPatternRectangular", rectangular)
            .fixes({"type"})
            .loudAbout(pairs)
            .appends(pairs),
        fullRow<ExcMfgPatternCircular>("ExcMfgPatternCircular", circular)
            .fixes({"type"})
            .loudAbout(pairs)
            .appends(pairs),
        fullRow<ExcMfgPatternUserDefined>("ExcMfgPatternUserDefined", userDefined)
            .fixes({"type"})
            .appends({"instance_positions", "deactivated_positions"}),

        fullRow<ExcMfgThreading>("ExcMfgThreading", "{" + threading + "}"),
        fullRow<ExcMfgThread>("ExcMfgThread", thread),
        fullRow<ExcMfgHoleThread>("ExcMfgHoleThread", holeThread),
        fullRow<ExcMfgSimpleHole>("ExcMfgHole that is simple", simpleHole),
        fullRow<ExcMfgTaperHole>("ExcMfgTaperHole", taperHole),
        fullRow<ExcMfgCounterBoreHole>("ExcMfgCounterBoreHole", counterBoreHole),
        fullRow<ExcMfgCounterSinkHole>("ExcMfgCounterSinkHole", counterSinkHole),
        fullRow<ExcMfgCounterDrillHole>("ExcMfgCounterDrillHole", counterDrillHole),

        fullRow<BareObject>("ExcMfgObject", "{" + object + "}"),
        fullRow<ExcMfgFeatureUnclassified>("ExcMfgFeature that is unclassified", "{" + feature + "}")
            .loudAbout({"pattern"}),
        fullRow<ExcMfgFeatureInternalThread>("ExcMfgFeatureThread that is internal", featureThread)
            .loudAbout({"pattern"}),
        fullRow<ExcMfgFeatureExternalThread>("ExcMfgFeatureThread that is external", featureThread)
            .loudAbout({"pattern"}),
        fullRow<BareFeatureHole>("ExcMfgFeatureHole", "{" + featureHole + "}"),
        fullRow<ExcMfgFeatureHoleType<ExcMfgSimpleHole>>("ExcMfgFeatureHoleType of a simple hole",
                                                         featureHoleOf(simpleHole)),
        fullRow<ExcMfgFeatureHoleType<ExcMfgTaperHole>>("ExcMfgFeatureHoleType of a taper hole",
                                                        featureHoleOf(taperHole)),
        fullRow<ExcMfgFeatureHoleType<ExcMfgCounterBoreHole>>("ExcMfgFeatureHoleType of a counter bore hole",
                                                              featureHoleOf(counterBoreHole)),
        fullRow<ExcMfgFeatureHoleType<ExcMfgCounterSinkHole>>("ExcMfgFeatureHoleType of a counter sink hole",
                                                              featureHoleOf(counterSinkHole)),
        fullRow<ExcMfgFeatureHoleType<ExcMfgCounterDrillHole>>("ExcMfgFeatureHoleType of a counter drill hole",
                                                               featureHoleOf(counterDrillHole)),
        fullRow<ExcMfgData>("ExcMfgData", data).governedBy({"has_data"}),
    };
}

} // namespace test
