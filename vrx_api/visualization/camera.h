#pragma once

#include "vrx_api/common/vector.h"

#include <cstdint>

namespace vrx
{

/// From where, and how, a saved display state is seen. Of the two projection parameters only the one of the camera's
/// own type is written; the other is lost in transit.
class VRX_API ExcCamera : public IJsonObject
{
public:
    enum class EType : std::int32_t
    {
        Undefined = 0,
        Perspective = 1,
        Orthographic = 2,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    double perspectiveViewAngle() const { return m_perspectiveViewAngle; }
    void setPerspectiveViewAngle(double angle) { m_perspectiveViewAngle = angle; }

    double orthographicZoomFactor() const { return m_orthographicZoomFactor; }
    void setOrthographicZoomFactor(double factor) { m_orthographicZoomFactor = factor; }

    const ExcVector3d& eye() const { return m_eye; }
    void setEye(const ExcVector3d& eye) { m_eye = eye; }

    const ExcVector3d& target() const { return m_target; }
    void setTarget(const ExcVector3d& target) { m_target = target; }

    const ExcVector3d& up() const { return m_up; }
    void setUp(const ExcVector3d& up) { m_up = up; }

private:
    friend struct Described<ExcCamera>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EType m_type = EType::Undefined;
    wstring m_name;
    double m_perspectiveViewAngle = 0.0;
    double m_orthographicZoomFactor = 0.0;
    ExcVector3d m_eye;
    ExcVector3d m_target;
    ExcVector3d m_up;
};

} // namespace vrx
