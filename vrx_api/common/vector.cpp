#include "vrx_api/common/vector.h"

#include "kolt/log.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"

#include <stdexcept>

namespace vrx
{

template <std::size_t N>
void ExcVectorBase<N>::readObject(const JsonValue& value)
{
    kolt::trace();
    if (!value.IsArray())
    {
        kolt::log(kolt::kError, "Exchange vector/point (2D/3D) object should have a JSON array type.");
        return;
    }
    decode(value, m_components);
}

// Vectors are written by the thousand: without a trace line.
template <std::size_t N>
void ExcVectorBase<N>::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    value = encode(m_components, allocator);
}

template <std::size_t N>
double& ExcVectorBase<N>::operator[](std::size_t index)
{
    if (index >= N)
    {
        throw std::invalid_argument("out of range");
    }
    return m_components[index];
}

template <std::size_t N>
double ExcVectorBase<N>::operator[](std::size_t index) const
{
    if (index >= N)
    {
        throw std::invalid_argument("out of range");
    }
    return m_components[index];
}

template class ExcVectorBase<2>;
template class ExcVectorBase<3>;

} // namespace vrx
