#include "vrx_api/common/matrix.h"

#include "vrx_api/json/fields.h"

#include <stdexcept>

namespace vrx
{

ExcMatrix3d::ExcMatrix3d()
    : m_rows{ExcVector3d(1.0, 0.0, 0.0), ExcVector3d(0.0, 1.0, 0.0), ExcVector3d(0.0, 0.0, 1.0)}
{
}

// A value that is no array is passed over without a message, and so is everything from the first row that is none.
template <class Value>
static bool decode(const Value& value, std::array<ExcVector3d, 3>& rows)
{
    if (!value.isArray())
    {
        return false;
    }
    std::size_t count = 0;
    for (const Value row : value.elements())
    {
        if (count == rows.size() || !row.isArray())
        {
            break;
        }
        decode(row, rows[count++]);
    }
    return true;
}

template <class Self, class Fields>
void ExcMatrix3d::describe(Self& self, Fields& fields)
{
    fields.whole(self.m_rows);
}
template struct Described<ExcMatrix3d>;

void ExcMatrix3d::readObject(const JsonValue& value)
{
    readWhole(*this, value);
}

void ExcMatrix3d::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeWhole(*this, value, allocator);
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
