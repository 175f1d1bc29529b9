#pragma once

#include "vrx_api/common/units.h"
#include "vrx_api/visualization/visu_capture.h"
#include "vrx_api/visualization/visu_node.h"
#include "vrx_api/visualization/visu_view.h"

#include <memory>
#include <vector>

namespace vrx
{

/// The whole scene of one block or of the root assembly. Views and captures name what they concern by ids, which the
/// library does not resolve. Copies share the nodes, the views and the captures.
class VRX_API ExcVisualizationData : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const std::vector<std::shared_ptr<ExcVisuNode>>& sceneRootNodes() const { return m_sceneRootNodes; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addSceneRootNode(const std::shared_ptr<ExcVisuNode>& node);
    void addSceneRootNodes(const std::vector<std::shared_ptr<ExcVisuNode>>& nodes);
    void setSceneRootNodes(const std::vector<std::shared_ptr<ExcVisuNode>>& nodes);

    /// The unit of all lengths in the scene.
    ELengthUnitType units() const { return m_units; }
    void setUnits(ELengthUnitType units) { m_units = units; }

    const std::vector<std::shared_ptr<ExcVisuView>>& views() const { return m_views; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addView(const std::shared_ptr<ExcVisuView>& view);
    void addViews(const std::vector<std::shared_ptr<ExcVisuView>>& views);
    void setViews(const std::vector<std::shared_ptr<ExcVisuView>>& views);

    const std::vector<std::shared_ptr<ExcVisuCapture>>& captures() const { return m_captures; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addCapture(const std::shared_ptr<ExcVisuCapture>& capture);
    void addCaptures(const std::vector<std::shared_ptr<ExcVisuCapture>>& captures);
    void setCaptures(const std::vector<std::shared_ptr<ExcVisuCapture>>& captures);

private:
    friend struct Described<ExcVisualizationData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<std::shared_ptr<ExcVisuNode>> m_sceneRootNodes;
    ELengthUnitType m_units = ELengthUnitType::Unknown;
    std::vector<std::shared_ptr<ExcVisuView>> m_views;
    std::vector<std::shared_ptr<ExcVisuCapture>> m_captures;
};

} // namespace vrx
