#include "vrx_api/common/subent_id.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr EnumName<ExcSubentId::EType> kSubentTypes[] = {
    {ExcSubentId::EType::Null, WIDE("0")},   {ExcSubentId::EType::Body, WIDE("b")},
    {ExcSubentId::EType::Edge, WIDE("e")},   {ExcSubentId::EType::Face, WIDE("f")},
    {ExcSubentId::EType::Vertex, WIDE("v")},
};
static constexpr const auto& enumTable(ExcSubentId::EType)
{
    return kSubentTypes;
}

template <class Self, class Fields>
void ExcSubentId::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("type"), self.m_type);
    fields.always(WIDE("index"), self.m_index);
}
template struct Described<ExcSubentId>;

void ExcSubentId::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcSubentId");
}

void ExcSubentId::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
