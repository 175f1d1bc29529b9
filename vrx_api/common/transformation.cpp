#include "vrx_api/common/transformation.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcTransformation::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("affine"), self.m_affine);
    fields.always(WIDE("translation"), self.m_translation);
}
template struct Described<ExcTransformation>;

void ExcTransformation::readObject(const JsonValue& value)
{
    readFields(*this, value, kSilently);
}

void ExcTransformation::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
