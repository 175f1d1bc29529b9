#pragma once

#include "vrx_api/common/vector.h"

#include <array>

namespace vrx
{

/// A plane that cuts the display, given as an origin with two vectors, as four coefficients, or as both. The two flags
/// say which forms exist; a plane with neither travels as JSON null.
class VRX_API ExcClippingPlane : public IJsonObject
{
public:
    /// The places of the coefficients.
    enum ECoefficient
    {
        CoefficientA = 0,
        CoefficientB = 1,
        CoefficientC = 2,
        CoefficientD = 3,
    };

    /// Sets the flags of the forms that are there, and clears none.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    bool hasPlane() const { return m_hasPlane; }
    void setHasPlane(bool present) { m_hasPlane = present; }

    const ExcVector3d& origin() const { return m_origin; }
    void setOrigin(const ExcVector3d& origin) { m_origin = origin; }

    const ExcVector3d& vectorU() const { return m_vectorU; }
    void setVectorU(const ExcVector3d& vector) { m_vectorU = vector; }

    const ExcVector3d& vectorV() const { return m_vectorV; }
    void setVectorV(const ExcVector3d& vector) { m_vectorV = vector; }

    bool hasCoefficients() const { return m_hasCoefficients; }
    void setHasCoefficients(bool present) { m_hasCoefficients = present; }

    const std::array<double, 4>& coefficients() const { return m_coefficients; }

    /// The range of the coefficient is not tested.
    double coefficient(ECoefficient coefficient) const { return m_coefficients[coefficient]; }
    ExcClippingPlane& setCoefficient(ECoefficient coefficient, double value);

private:
    friend struct Described<ExcClippingPlane>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    bool m_hasPlane = false;
    ExcVector3d m_origin;
    ExcVector3d m_vectorU;
    ExcVector3d m_vectorV;
    bool m_hasCoefficients = false;
    std::array<double, 4> m_coefficients{};
};

} // namespace vrx
