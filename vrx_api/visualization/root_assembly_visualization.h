#pragma once

#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/visualization/visualization_data.h"

#include <memory>

namespace vrx
{

/// The scene that belongs to the root assembly. Crosses as compressed binary JSON. Copies share the scene.
class VRX_API ExcRootAssemblyVisualization : public IExchangeObject
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;
    bool binary() const override;
    bool compress() const override;

    const std::shared_ptr<ExcVisualizationData>& visualizationData() const { return m_visualizationData; }
    void setVisualizationData(const std::shared_ptr<ExcVisualizationData>& data) { m_visualizationData = data; }

private:
    friend struct Described<ExcRootAssemblyVisualization>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::shared_ptr<ExcVisualizationData> m_visualizationData;
};

} // namespace vrx
