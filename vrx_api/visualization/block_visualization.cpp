#include "vrx_api/visualization/block_visualization.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

const wstring ExcBlockVisualization::s_objectName = WIDE("exc_block_visualization");
static const StaticExchangeObject<ExcBlockVisualization> s_prototype;

template <class Self, class Fields>
void ExcBlockVisualization::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("block_id"), reference(EIdSpace::Block, self.m_blockId));
    fields.filled(WIDE("visualization_data"), self.m_visualizationData);
}
template struct Described<ExcBlockVisualization>;

void ExcBlockVisualization::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcBlockVisualization");
}

void ExcBlockVisualization::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

const wstring& ExcBlockVisualization::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcBlockVisualization::clone() const
{
    return std::make_shared<ExcBlockVisualization>();
}

bool ExcBlockVisualization::binary() const
{
    return true;
}

bool ExcBlockVisualization::compress() const
{
    return true;
}

} // namespace vrx
