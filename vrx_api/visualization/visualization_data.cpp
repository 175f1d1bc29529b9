#include "vrx_api/visualization/visualization_data.h"

#include "vrx_api/common/unit_tables.h"
#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcVisualizationData::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("scene_root_nodes"), self.m_sceneRootNodes);
    fields.always(WIDE("units"), self.m_units);
    fields.filled(WIDE("views"), self.m_views);
    fields.filled(WIDE("captures"), self.m_captures);
}
template struct Described<ExcVisualizationData>;

void ExcVisualizationData::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisualizationData");
}

void ExcVisualizationData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullNode = "ExcVisualizationData: attempt to add null Scene Root Visu Node object.";
static constexpr const char* kNullView = "ExcVisualizationData: attempt to add null Visu View object.";
static constexpr const char* kNullCapture = "ExcVisualizationData: attempt to add null Visu Capture object.";

void ExcVisualizationData::addSceneRootNode(const std::shared_ptr<ExcVisuNode>& node)
{
    add(m_sceneRootNodes, node, kNullNode);
}

void ExcVisualizationData::addSceneRootNodes(const std::vector<std::shared_ptr<ExcVisuNode>>& nodes)
{
    addAll(m_sceneRootNodes, nodes, kNullNode);
}

void ExcVisualizationData::setSceneRootNodes(const std::vector<std::shared_ptr<ExcVisuNode>>& nodes)
{
    setAll(m_sceneRootNodes, nodes, kNullNode);
}

void ExcVisualizationData::addView(const std::shared_ptr<ExcVisuView>& view)
{
    add(m_views, view, kNullView);
}

void ExcVisualizationData::addViews(const std::vector<std::shared_ptr<ExcVisuView>>& views)
{
    addAll(m_views, views, kNullView);
}

void ExcVisualizationData::setViews(const std::vector<std::shared_ptr<ExcVisuView>>& views)
{
    setAll(m_views, views, kNullView);
}

void ExcVisualizationData::addCapture(const std::shared_ptr<ExcVisuCapture>& capture)
{
    add(m_captures, capture, kNullCapture);
}

void ExcVisualizationData::addCaptures(const std::vector<std::shared_ptr<ExcVisuCapture>>& captures)
{
    addAll(m_captures, captures, kNullCapture);
}

void ExcVisualizationData::setCaptures(const std::vector<std::shared_ptr<ExcVisuCapture>>& captures)
{
    setAll(m_captures, captures, kNullCapture);
}

} // namespace vrx
