#include "vrx_api/common/matrix.h"

#include "kolt/log.h"
#include "vrx_api/json/json_write.h"

#include <stdexcept>

namespace vrx
{

ExcMatrix3d::ExcMatrix3d()
    : m_rows{ExcVector3d(1.0, 0.0, 0.0), ExcVector3d(0.0, 1.0, 0.0), ExcVector3d(0.0, 0.0, 1.0)}
{
}

// A value that is no array is passed over without a message, and so is everything from the first row that is none.
void ExcMatrix3d::readObject(const JsonValue& value)
{
    kolt::trace();
    if (!value.IsArray())
    {
        return;
    }
    for (rapidjson::SizeType i = 0; i < m_rows.size() && i < value.Size() && value[i].IsArray(); ++i)
    {
        m_rows[i].readObject(value[i]);
    }
}

void ExcMatrix3d::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    kolt::trace();
    value = encode(m_rows, allocator);
}

ExcVector3d& ExcMatrix3d::row(std::size_t index)
{
    if (index >= m_rows.size())
    {
        throw std::invalid_argument("out of range");
    }
    return m_rows[index];
}

const ExcVector3d& ExcMatrix3d::row(std::size_t index) const
{
    if (index >= m_rows.size())
    {
        throw std::invalid_argument("out of range");
    }
    return m_rows[index];
}

} // namespace vrx
