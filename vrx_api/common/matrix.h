#pragma once

#include "vrx_api/common/vector.h"

#include <array>
#include <cstddef>

namespace vrx
{

/// Three rows of three numbers, an identity by default. Whether rows or columns hold the images of the axes is agreed
/// between the two ends of the channel.
class VRX_API ExcMatrix3d : public IJsonObject
{
public:
    ExcMatrix3d();

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Throws `std::invalid_argument` for an index of 3 or more.
    ExcVector3d& row(std::size_t index);
    const ExcVector3d& row(std::size_t index) const;

    /// As `row`.
    ExcVector3d& operator[](std::size_t index) { return row(index); }
    const ExcVector3d& operator[](std::size_t index) const { return row(index); }

private:
    friend struct Described<ExcMatrix3d>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::array<ExcVector3d, 3> m_rows;
};

} // namespace vrx
