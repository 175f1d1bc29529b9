#include "vrx_api/mechanical/pmi_annotation_view.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

namespace
{

// Annotations that are entered into the index of their view as they come, under the ids that they have then. The first
// one keeps its place; an id that is set later moves nothing.
template <class Annotations, class Index>
struct Indexed
{
    Annotations& annotations;
    Index& index;
};
template <class Annotations, class Index>
Indexed(Annotations&, Index&) -> Indexed<Annotations, Index>;

// Enters the annotations behind the first `count`.
template <class Annotations, class Index>
void enterBehind(std::size_t count, const Indexed<Annotations, Index>& field)
{
    for (std::size_t i = count; i < field.annotations.size(); ++i)
    {
        field.index.try_emplace(field.annotations[i]->id(), field.annotations[i]);
    }
}

template <class Value, class Annotations, class Index>
bool decode(const Value& value, const Indexed<Annotations, Index>& field)
{
    const std::size_t count = field.annotations.size();
    const bool taken = decode(value, field.annotations);
    enterBehind(count, field);
    return taken;
}

template <class Out, class Annotations, class Index>
void encode(Out& out, const Indexed<Annotations, Index>& field)
{
    encode(out, field.annotations);
}

template <class Annotations, class Index>
bool isEmpty(const Indexed<Annotations, Index>& field)
{
    return field.annotations.empty();
}

template <class Annotations, class Index, class T>
void add(const Indexed<Annotations, Index>& field, const std::shared_ptr<T>& annotation, const char* refusal)
{
    const std::size_t count = field.annotations.size();
    add(field.annotations, annotation, refusal);
    enterBehind(count, field);
}

} // namespace

template <class Self, class Fields>
void ExcPMIAnnotationView::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("origin"), self.m_origin);
    fields.always(WIDE("u"), self.m_vectorU);
    fields.always(WIDE("v"), self.m_vectorV);
    fields.filled(WIDE("notes"), Indexed{self.m_notes, self.m_annotationIndex});
    fields.filled(WIDE("datum"), Indexed{self.m_datums, self.m_annotationIndex});
    fields.filled(WIDE("datum_targets"), Indexed{self.m_datumTargets, self.m_annotationIndex});
    fields.filled(WIDE("GDTs"), Indexed{self.m_gdts, self.m_annotationIndex});
    fields.filled(WIDE("dimensions"), Indexed{self.m_dimensions, self.m_annotationIndex});
    fields.filled(WIDE("roughness"), Indexed{self.m_roughness, self.m_annotationIndex});
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
    add(Indexed{m_notes, m_annotationIndex}, note, "ExcPMIAnnotationView: attempt to add null PMI Note object.");
}

void ExcPMIAnnotationView::addDatum(const std::shared_ptr<ExcPMIDatum>& datum)
{
    add(Indexed{m_datums, m_annotationIndex}, datum, "ExcPMIAnnotationView: attempt to add null PMI Datum object.");
}

void ExcPMIAnnotationView::addDatumTarget(const std::shared_ptr<ExcPMIDatumTarget>& target)
{
    add(Indexed{m_datumTargets, m_annotationIndex}, target,
        "ExcPMIAnnotationView: attempt to add null PMI Datum Target object.");
}

void ExcPMIAnnotationView::addGdt(const std::shared_ptr<ExcPMIGDT>& gdt)
{
    // The text keeps its misspelling.
    add(Indexed{m_gdts, m_annotationIndex}, gdt, "ExcPMIAnnotationView: attempt ot add null PMI GDT object.");
}

void ExcPMIAnnotationView::addDimension(const std::shared_ptr<ExcPMIDimension>& dimension)
{
    add(Indexed{m_dimensions, m_annotationIndex}, dimension,
        "ExcPMIAnnotationView: attempt to add null PMI Dimension object.");
}

void ExcPMIAnnotationView::addRoughness(const std::shared_ptr<ExcPMIRoughness>& roughness)
{
    add(Indexed{m_roughness, m_annotationIndex}, roughness,
        "ExcPMIAnnotationView: attempt to add null PMI Roughness object.");
}

std::shared_ptr<ExcPMIAnnotation> ExcPMIAnnotationView::getAnnotationById(const wstring& id) const
{
    const auto found = m_annotationIndex.find(id);
    return found == m_annotationIndex.end() ? nullptr : found->second;
}

} // namespace vrx
