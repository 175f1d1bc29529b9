#pragma once

#include "vrx_api/common/entity.h"
#include "vrx_api/visualization/visu_edge.h"
#include "vrx_api/visualization/visu_text.h"

#include <memory>
#include <vector>

namespace vrx
{

/// The drawn form of one annotation. Copies share the edges, the texts and the linked elements.
class VRX_API ExcVisuPMI : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& displayName() const { return m_displayName; }
    void setDisplayName(const wstring& name) { m_displayName = name; }

    /// By this id an `ExcEntity` points at the item.
    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    /// The annotation in the mechanical data.
    const wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const wstring& id) { m_mechanicalId = id; }

    std::vector<std::shared_ptr<ExcVisuEdge>> edges() const { return m_edges; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addEdge(const std::shared_ptr<ExcVisuEdge>& edge);
    void addEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges);
    void setEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges);

    std::vector<std::shared_ptr<ExcVisuText>> texts() const { return m_texts; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addText(const std::shared_ptr<ExcVisuText>& text);
    void addTexts(const std::vector<std::shared_ptr<ExcVisuText>>& texts);
    void setTexts(const std::vector<std::shared_ptr<ExcVisuText>>& texts);

    /// These are read but never written.
    const std::vector<std::shared_ptr<ExcEntity>>& linkedElements() const { return m_linkedElements; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);
    void setLinkedElements(const std::vector<std::shared_ptr<ExcEntity>>& elements);

private:
    friend struct Described<ExcVisuPMI>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_displayName;
    wstring m_id;
    wstring m_mechanicalId;
    std::vector<std::shared_ptr<ExcVisuEdge>> m_edges;
    std::vector<std::shared_ptr<ExcVisuText>> m_texts;
    std::vector<std::shared_ptr<ExcEntity>> m_linkedElements;
};

} // namespace vrx
