#include "vrx_api/mechanical/pmi_datum_target.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

using EType = ExcPMIDatumTarget::EType;

static constexpr EnumName<EType> kTargetTypes[] = {
    {EType::Unknown, WIDE("unknown")},
    {EType::Point, WIDE("point")},
    {EType::Line, WIDE("line")},
    {EType::AreaCircular, WIDE("area_circular")},
    {EType::AreaRectangular, WIDE("area_rectangular")},
    {EType::AreaFace, WIDE("area_face")},
    {EType::Feature, WIDE("feature")},
    {EType::UserDefined, WIDE("user_defined")},
};
static constexpr const auto& enumTable(EType)
{
    return kTargetTypes;
}

template <class Self, class Fields>
void ExcPMIDatumTarget::describe(Self& self, Fields& fields)
{
    describeBase<ExcPMIAnnotation>(self, fields);
    fields.always(WIDE("label"), self.m_label);
    fields.always(WIDE("target_type"), self.m_targetType);
    fields.always(WIDE("has_diameter"), self.m_hasDiameter);
    fields.always(WIDE("upper_text"), self.m_upperText);
    fields.always(WIDE("lower_text"), self.m_lowerText);
    fields.always(WIDE("target_zone"), self.m_targetZone);
}
template struct Described<ExcPMIDatumTarget>;

void ExcPMIDatumTarget::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIDatumTarget");
}

void ExcPMIDatumTarget::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

EPMIAnnotationType ExcPMIDatumTarget::type() const
{
    return EPMIAnnotationType::DatumTarget;
}

} // namespace vrx
