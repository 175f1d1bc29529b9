#include "vrx_api/mechanical/pmi_annotation_view.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

// Enters an annotation under the id that it has then: the first one keeps its place, and an id that is set later moves
// nothing.
template <class Index, class T>
static void enter(Index& index, const std::shared_ptr<T>& annotation)
{
    index.try_emplace(annotation->id(), annotation);
}

template <class Index, class T>
static void add(std::vector<std::shared_ptr<T>>& annotations, Index& index, const std::shared_ptr<T>& annotation,
                const char* refusal)
{
    if (!refuseNull(annotation, refusal))
    {
        annotations.push_back(annotation);
        enter(index, annotations.back());
    }
}

template <class Self, class Fields>
void ExcPMIAnnotationView::describe(Self& self, Fields& fields)
{
    const auto index = [&self](const auto& annotation) { enter(self.m_annotationIndex, annotation); };

    fields.always(WIDE("origin"), self.m_origin);
    fields.always(WIDE("u"), self.m_vectorU);
    fields.always(WIDE("v"), self.m_vectorV);
    fields.filled(WIDE("notes"), entered(self.m_notes, index));
    fields.filled(WIDE("datum"), entered(self.m_datums, index));
    fields.filled(WIDE("datum_targets"), entered(self.m_datumTargets, index));
    fields.filled(WIDE("GDTs"), entered(self.m_gdts, index));
    fields.filled(WIDE("dimensions"), entered(self.m_dimensions, index));
    fields.filled(WIDE("roughness"), entered(self.m_roughness, index));
}
template struct Described<ExcPMIAnnotationView>;

void ExcPMIAnnotationView::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcPMIAnnotationView");
}

void ExcPMIAnnotationView::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcPMIAnnotationView::addNote(const std::shared_ptr<ExcPMINote>& note)
{
    add(m_notes, m_annotationIndex, note, "ExcPMIAnnotationView: attempt to add null PMI Note object.");
}

void ExcPMIAnnotationView::addDatum(const std::shared_ptr<ExcPMIDatum>& datum)
{
    add(m_datums, m_annotationIndex, datum, "ExcPMIAnnotationView: attempt to add null PMI Datum object.");
}

void ExcPMIAnnotationView::addDatumTarget(const std::shared_ptr<ExcPMIDatumTarget>& target)
{
    add(m_datumTargets, m_annotationIndex, target,
        "ExcPMIAnnotationView: attempt to add null PMI Datum Target object.");
}

void ExcPMIAnnotationView::addGdt(const std::shared_ptr<ExcPMIGDT>& gdt)
{
    // The text keeps its misspelling.
    add(m_gdts, m_annotationIndex, gdt, "ExcPMIAnnotationView: attempt ot add null PMI GDT object.");
}

void ExcPMIAnnotationView::addDimension(const std::shared_ptr<ExcPMIDimension>& dimension)
{
    add(m_dimensions, m_annotationIndex, dimension, "ExcPMIAnnotationView: attempt to add null PMI Dimension object.");
}

void ExcPMIAnnotationView::addRoughness(const std::shared_ptr<ExcPMIRoughness>& roughness)
{
    add(m_roughness, m_annotationIndex, roughness, "ExcPMIAnnotationView: attempt to add null PMI Roughness object.");
}

std::shared_ptr<ExcPMIAnnotation> ExcPMIAnnotationView::getAnnotationById(const wstring& id) const
{
    const auto found = m_annotationIndex.find(id);
    return found == m_annotationIndex.end() ? nullptr : found->second;
}

} // namespace vrx
