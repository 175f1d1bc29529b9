#include "vrx_api/manufacturing/mfg_feature.h"

#include "vrx_api/manufacturing/mfg_feature_unclassified.h"
#include "vrx_api/manufacturing/mfg_pattern_fields.h"

namespace vrx
{

// The pattern's own type decides which class it is, and there may be none.
template <class Value>
static bool decode(const Value& value, std::shared_ptr<ExcMfgPattern>& field)
{
    field = readPattern(value);
    return true;
}

static void outline(Shape& shape, const std::shared_ptr<ExcMfgPattern>&)
{
    outlinePattern(shape);
}

template <class Self, class Fields>
void ExcMfgFeature::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgObject>(self, fields);
    fields.always(WIDE("name"), self.m_name);
    fields.filled(WIDE("pattern"), self.m_pattern);
}
template struct Described<ExcMfgFeature>;
template struct Inherits<ExcMfgFeatureUnclassified, ExcMfgFeature>;

void ExcMfgFeature::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgFeature");
}

void ExcMfgFeature::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
