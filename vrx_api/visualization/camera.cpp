#include "vrx_api/visualization/camera.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr EnumName<ExcCamera::EType> kCameraTypes[] = {
    {ExcCamera::EType::Undefined, WIDE("undefined")},
    {ExcCamera::EType::Perspective, WIDE("perspective")},
    {ExcCamera::EType::Orthographic, WIDE("orthographic")},
};
static constexpr const auto& enumTable(ExcCamera::EType)
{
    return kCameraTypes;
}

template <class Self, class Fields>
void ExcCamera::describe(Self& self, Fields& fields)
{
    const bool perspective = self.m_type == EType::Perspective;
    const bool orthographic = self.m_type == EType::Orthographic;

    fields.always(WIDE("type"), self.m_type);
    fields.always(WIDE("name"), self.m_name);
    fields.when(perspective, WIDE("perspective_view_angle"), self.m_perspectiveViewAngle);
    fields.when(orthographic, WIDE("orthographic_zoom_factor"), self.m_orthographicZoomFactor);
    fields.always(WIDE("eye"), self.m_eye);
    fields.always(WIDE("target"), self.m_target);
    fields.always(WIDE("up"), self.m_up);
}
template struct Described<ExcCamera>;

void ExcCamera::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcCamera");
}

void ExcCamera::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
