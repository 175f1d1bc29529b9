#pragma once

#include "vrx_api/json/json_object.h"

#include <array>
#include <cstddef>

namespace vrx
{

/// A point or a direction of N components; the library holds the two for 2 and 3. Its JSON is an array of N numbers, of
/// which a reader takes the first ones that were written as doubles.
template <std::size_t N>
class VRX_API ExcVectorBase : public IJsonObject
{
public:
    ExcVectorBase() = default;

    /// Takes the first components that were written as doubles.
    void readObject(const JsonValue& value) override;
    /// Writes an array of N doubles.
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Throws `std::invalid_argument` for an index of N or more.
    double& operator[](std::size_t index);
    double operator[](std::size_t index) const;

protected:
    /// For the two vectors, which name their components.
    explicit ExcVectorBase(const std::array<double, N>& components)
        : m_components(components)
    {
    }

    /// In the order of the axes.
    std::array<double, N> m_components{};

private:
    friend struct Described<ExcVectorBase>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);
};

/// A point or a direction in a plane: x and y.
class VRX_API ExcVector2d : public ExcVectorBase<2>
{
public:
    ExcVector2d() = default;
    /// Of its two components.
    ExcVector2d(double x, double y)
        : ExcVectorBase({x, y})
    {
    }

    /// Replaces both components.
    void set(double x, double y) { m_components = {x, y}; }
};

/// A point or a direction in space: x, y and z.
class VRX_API ExcVector3d : public ExcVectorBase<3>
{
public:
    ExcVector3d() = default;
    /// Of its three components.
    ExcVector3d(double x, double y, double z)
        : ExcVectorBase({x, y, z})
    {
    }

    /// Replaces all components.
    void set(double x, double y, double z) { m_components = {x, y, z}; }
};

} // namespace vrx
