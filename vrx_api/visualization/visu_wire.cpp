#include "vrx_api/visualization/visu_wire.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"
#include "vrx_api/visualization/visu_geometry_type_table.h"

namespace vrx
{

template <class Self, class Fields>
void ExcVisuWire::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("display_name"), self.m_displayName);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
    fields.always(WIDE("geometry_type"), self.m_geometryType);
    fields.filled(WIDE("edges"), self.m_edges);
}
template struct Described<ExcVisuWire>;

void ExcVisuWire::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuWire");
}

void ExcVisuWire::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullEdge = "ExcVisuWire: attempt to add null Visu Edge object.";

void ExcVisuWire::addEdge(const std::shared_ptr<ExcVisuEdge>& edge)
{
    add(m_edges, edge, kNullEdge);
}

void ExcVisuWire::addEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges)
{
    addAll(m_edges, edges, kNullEdge);
}

void ExcVisuWire::setEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges)
{
    setAll(m_edges, edges, kNullEdge);
}

} // namespace vrx
