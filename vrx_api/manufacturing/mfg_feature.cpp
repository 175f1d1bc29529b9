#include "vrx_api/manufacturing/mfg_feature.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

// The pattern's own type decides which class it is, and there may be none.
static bool decode(const JsonValue& value, std::shared_ptr<ExcMfgPattern>& field)
{
    field = ExcMfgPattern::readPattern(value);
    return true;
}

template <class Self, class Fields>
void ExcMfgFeature::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgObject>(self, fields);
    fields.always(WIDE("name"), self.m_name);
    fields.filled(WIDE("pattern"), self.m_pattern);
}
template struct Described<ExcMfgFeature>;

void ExcMfgFeature::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgFeature");
}

void ExcMfgFeature::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
