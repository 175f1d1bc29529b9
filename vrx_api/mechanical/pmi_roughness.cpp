#include "vrx_api/mechanical/pmi_roughness.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

using EObtentionType = ExcPMIRoughness::EObtentionType;
using EApplicabilityType = ExcPMIRoughness::EApplicabilityType;

static constexpr EnumName<EObtentionType> kObtentionTypes[] = {
    {EObtentionType::Unsupported, WIDE("unsupported")},
    {EObtentionType::NotDefined, WIDE("not_defined")},
    {EObtentionType::MatchingMandatory, WIDE("matching_mandatory")},
    {EObtentionType::MatchingForbidden, WIDE("matching_forbidden")},
};
static constexpr const auto& enumTable(EObtentionType)
{
    return kObtentionTypes;
}

static constexpr EnumName<EApplicabilityType> kApplicabilityTypes[] = {
    {EApplicabilityType::Unsupported, WIDE("unsupported")},
    {EApplicabilityType::SpecifiedSurfaceOnly, WIDE("specified_surface_only")},
    {EApplicabilityType::AllPartSurfaces, WIDE("all_part_surfaces")},
    {EApplicabilityType::BasicSurface, WIDE("basic_surface")},
};
static constexpr const auto& enumTable(EApplicabilityType)
{
    return kApplicabilityTypes;
}

template <class Self, class Fields>
void ExcPMIRoughness::describe(Self& self, Fields& fields)
{
    describeBase<ExcPMIAnnotation>(self, fields);
    fields.always(WIDE("obtention_type"), self.m_obtentionType);
    fields.always(WIDE("applicability_type"), self.m_applicabilityType);
    fields.filled(WIDE("fields"), valid(self.m_fields));
}
template struct Described<ExcPMIRoughness>;

void ExcPMIRoughness::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIRoughness");
}

void ExcPMIRoughness::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

EPMIAnnotationType ExcPMIRoughness::type() const
{
    return EPMIAnnotationType::Roughness;
}

} // namespace vrx
