#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

using namespace vrx;

namespace test
{

namespace
{

// Bases, to be read and written by themselves.
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

    return {
        fullRow<BarePattern>("ExcMfgPattern", R"({"type":"none"})"),
        fullRow<ExcMfgPattern::Instance>("ExcMfgPattern::Instance", instance),
        fullRow<ExcMfgPatternRectangular>("ExcMfgPatternRectangular", rectangular).loudAbout(pairs).appends(pairs),
        fullRow<ExcMfgPatternCircular>("ExcMfgPatternCircular", circular).loudAbout(pairs).appends(pairs),
        fullRow<ExcMfgPatternUserDefined>("ExcMfgPatternUserDefined", userDefined)
            .appends({"instance_positions", "deactivated_positions"}),
    };
}

} // namespace test
