#include "vrx_api/visualization/root_assembly_visualization.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

const wstring ExcRootAssemblyVisualization::s_objectName = WIDE("exc_root_assembly_visualization");
static const StaticExchangeObject<ExcRootAssemblyVisualization> s_prototype;

template <class Self, class Fields>
void ExcRootAssemblyVisualization::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("visualization_data"), self.m_visualizationData);
}
template struct Described<ExcRootAssemblyVisualization>;

void ExcRootAssemblyVisualization::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcRootAssemblyVisualization");
}

void ExcRootAssemblyVisualization::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

const wstring& ExcRootAssemblyVisualization::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcRootAssemblyVisualization::clone() const
{
    return std::make_shared<ExcRootAssemblyVisualization>();
}

bool ExcRootAssemblyVisualization::binary() const
{
    return true;
}

bool ExcRootAssemblyVisualization::compress() const
{
    return true;
}

} // namespace vrx
