#include "vrx_api/common/vector.h"

#include "vrx_api/json/fields.h"

#include <stdexcept>

namespace vrx
{

template <std::size_t N>
template <class Self, class Fields>
void ExcVectorBase<N>::describe(Self& self, Fields& fields)
{
    fields.whole(self.m_components);
}

template <std::size_t N>
void ExcVectorBase<N>::readObject(const JsonValue& value)
{
    readArray(*this, value, "Exchange vector/point (2D/3D)");
}

// Vectors are written by the thousand: without a trace line.
template <std::size_t N>
void ExcVectorBase<N>::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    value = treeOf(m_components, allocator);
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
template struct Inherits<ExcVector2d, ExcVectorBase<2>, Form::Array>;
template struct Inherits<ExcVector3d, ExcVectorBase<3>, Form::Array>;

} // namespace vrx
