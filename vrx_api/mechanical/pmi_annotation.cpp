#include "vrx_api/mechanical/pmi_annotation.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr EnumName<EPMIOrientation> kOrientations[] = {
    {EPMIOrientation::Horizontal, WIDE("horizontal")}, {EPMIOrientation::Vertical, WIDE("vertical")},
    {EPMIOrientation::Parallel, WIDE("parallel")},     {EPMIOrientation::Perpendicular, WIDE("perpendicular")},
    {EPMIOrientation::DimAngle, WIDE("dim_angle")},
};
static constexpr const auto& enumTable(EPMIOrientation)
{
    return kOrientations;
}

static constexpr EnumName<EPMIAnnotationType> kAnnotationTypes[] = {
    {EPMIAnnotationType::Unknown, WIDE("unknown")},          {EPMIAnnotationType::Datum, WIDE("datum")},
    {EPMIAnnotationType::DatumTarget, WIDE("datum_target")}, {EPMIAnnotationType::Note, WIDE("note")},
    {EPMIAnnotationType::FlagNote, WIDE("flag_note")},       {EPMIAnnotationType::NOA, WIDE("NOA")},
    {EPMIAnnotationType::Roughness, WIDE("roughness")},      {EPMIAnnotationType::GDT, WIDE("GDT")},
    {EPMIAnnotationType::Dimension, WIDE("dimension")},
};
static constexpr const auto& enumTable(EPMIAnnotationType)
{
    return kAnnotationTypes;
}

// The keys of the base, name, id and hidden, neither go out nor come in. The type is never read: the array in which an
// annotation stands tells its class.
template <class Self, class Fields>
void ExcPMIAnnotation::describe(Self& self, Fields& fields)
{
    fields.writeOnly(true, WIDE("type"), self.type());
    fields.always(WIDE("position"), self.m_position);
    fields.always(WIDE("orientation"), self.m_orientation);
    fields.when(self.m_orientation == EPMIOrientation::DimAngle, WIDE("angle"), self.m_angle);
    fields.always(WIDE("z_depth"), self.m_zDepth);
    fields.always(WIDE("linked_elements"), self.m_linkedElements);
    fields.always(WIDE("leaders"), self.m_leaders);
}
template struct Described<ExcPMIAnnotation>;

void ExcPMIAnnotation::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIAnnotation");
}

void ExcPMIAnnotation::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullLinkedElement = "ExcPMIAnnotation: attempt to add null linked element";
static constexpr const char* kNullLeader = "ExcPMIAnnotation: attempt to add null PMI leader.";

void ExcPMIAnnotation::addLinkedElement(const std::shared_ptr<ExcEntity>& element)
{
    add(m_linkedElements, element, kNullLinkedElement);
}

void ExcPMIAnnotation::addLinkedElements(const std::vector<std::shared_ptr<ExcEntity>>& elements)
{
    addAll(m_linkedElements, elements, kNullLinkedElement);
}

void ExcPMIAnnotation::setLinkedElements(const std::vector<std::shared_ptr<ExcEntity>>& elements)
{
    setAll(m_linkedElements, elements, kNullLinkedElement);
}

void ExcPMIAnnotation::addLeader(const std::shared_ptr<ExcPMILeader>& leader)
{
    add(m_leaders, leader, kNullLeader);
}

void ExcPMIAnnotation::addLeaders(const std::vector<std::shared_ptr<ExcPMILeader>>& leaders)
{
    addAll(m_leaders, leaders, kNullLeader);
}

void ExcPMIAnnotation::setLeaders(const std::vector<std::shared_ptr<ExcPMILeader>>& leaders)
{
    setAll(m_leaders, leaders, kNullLeader);
}

} // namespace vrx
