#include "vrx_api/visualization/visu_pmi.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

template <class Self, class Fields>
void ExcVisuPMI::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("display_name"), self.m_displayName);
    fields.always(WIDE("id"), identity(EIdSpace::Annotation, self.m_id));
    fields.always(WIDE("mechanical_id"), identity(EIdSpace::Annotation, self.m_mechanicalId));
    fields.filled(WIDE("edges"), self.m_edges);
    fields.filled(WIDE("texts"), self.m_texts);
    fields.readOnly(WIDE("linked_elements"), self.m_linkedElements);
}
template struct Described<ExcVisuPMI>;

void ExcVisuPMI::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuPMI");
}

void ExcVisuPMI::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullEdge = "ExcVisuPMI: attempt to add null Visu Edge object.";
static constexpr const char* kNullText = "ExcVisuPMI: attempt to add null Visu Text object.";
static constexpr const char* kNullLinkedElement = "ExcVisuPMI: attempt to add null Linked Element object.";

void ExcVisuPMI::addEdge(const std::shared_ptr<ExcVisuEdge>& edge)
{
    add(m_edges, edge, kNullEdge);
}

void ExcVisuPMI::addEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges)
{
    addAll(m_edges, edges, kNullEdge);
}

void ExcVisuPMI::setEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges)
{
    setAll(m_edges, edges, kNullEdge);
}

void ExcVisuPMI::addText(const std::shared_ptr<ExcVisuText>& text)
{
    add(m_texts, text, kNullText);
}

void ExcVisuPMI::addTexts(const std::vector<std::shared_ptr<ExcVisuText>>& texts)
{
    addAll(m_texts, texts, kNullText);
}

void ExcVisuPMI::setTexts(const std::vector<std::shared_ptr<ExcVisuText>>& texts)
{
    setAll(m_texts, texts, kNullText);
}

void ExcVisuPMI::addLinkedElement(const std::shared_ptr<ExcEntity>& element)
{
    add(m_linkedElements, element, kNullLinkedElement);
}

void ExcVisuPMI::setLinkedElements(const std::vector<std::shared_ptr<ExcEntity>>& elements)
{
    setAll(m_linkedElements, elements, kNullLinkedElement);
}

} // namespace vrx
