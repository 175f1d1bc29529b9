#include "vrx_api/common/entity.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr EnumName<ExcEntity::EType> kEntityTypes[] = {
    {ExcEntity::EType::Unknown, WIDE("unknown")},   {ExcEntity::EType::Fsp, WIDE("fsp")},
    {ExcEntity::EType::Visu, WIDE("visu")},         {ExcEntity::EType::Mfg, WIDE("mfg")},
    {ExcEntity::EType::Original, WIDE("original")},
};
static constexpr const auto& enumTable(ExcEntity::EType)
{
    return kEntityTypes;
}

// The type governs what is written; a reader takes whatever is there.
template <class Self, class Fields>
void ExcEntity::describe(Self& self, Fields& fields)
{
    const bool original = self.m_type == EType::Original;
    const bool hasId = original || self.m_type == EType::Visu || self.m_type == EType::Mfg;
    fields.always(WIDE("type"), self.m_type);
    fields.when(self.m_type == EType::Fsp, WIDE("fsp"), self.m_fsp);
    fields.when(original, WIDE("description"), self.m_description);
    fields.when(hasId, WIDE("id"), self.m_id);
}
template struct Described<ExcEntity>;

void ExcEntity::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcEntity");
}

void ExcEntity::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
