#pragma once

#include "vrx_api/common/entity.h"
#include "vrx_api/visualization/camera.h"
#include "vrx_api/visualization/clipping_plane.h"

#include <memory>
#include <vector>

namespace vrx
{

/// A stored display state: the camera, the clipping plane and what is to be seen. It names what it concerns by ids and
/// by entities. Copies share the entities.
class VRX_API ExcVisuCapture : public IJsonObject
{
public:
    /// A capture without a clipping plane logs the plane's message, since null stands in its place.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& displayName() const { return m_displayName; }
    void setDisplayName(const wstring& name) { m_displayName = name; }

    /// By this id an `ExcEntity` points at the capture.
    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    /// The capture's counterpart in the mechanical data.
    const wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const wstring& id) { m_mechanicalId = id; }

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }

    bool isActive() const { return m_active; }
    void setActive(bool active) { m_active = active; }

    const wstring& hiddenText() const { return m_hiddenText; }
    void setHiddenText(const wstring& text) { m_hiddenText = text; }

    const ExcClippingPlane& clippingPlane() const { return m_clippingPlane; }
    void setClippingPlane(const ExcClippingPlane& plane) { m_clippingPlane = plane; }

    const ExcCamera& camera() const { return m_camera; }
    void setCamera(const ExcCamera& camera) { m_camera = camera; }

    const std::vector<wstring>& annotationIds() const { return m_annotationIds; }
    void addAnnotationId(const wstring& id) { m_annotationIds.push_back(id); }
    void setAnnotationIds(const std::vector<wstring>& ids) { m_annotationIds = ids; }

    const std::vector<wstring>& ftaConstructedGeometryIds() const { return m_ftaConstructedGeometryIds; }
    void addFtaConstructedGeometryIds(const wstring& id) { m_ftaConstructedGeometryIds.push_back(id); }
    void setFtaConstructedGeometryIds(const std::vector<wstring>& ids) { m_ftaConstructedGeometryIds = ids; }

    const std::vector<std::shared_ptr<ExcEntity>>& linkedElements() const { return m_linkedElements; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);
    void setLinkedElements(const std::vector<std::shared_ptr<ExcEntity>>& elements);

private:
    friend struct Described<ExcVisuCapture>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_displayName;
    wstring m_id;
    wstring m_mechanicalId;
    bool m_hidden = false;
    bool m_active = false;
    wstring m_hiddenText;
    ExcClippingPlane m_clippingPlane;
    ExcCamera m_camera;
    std::vector<wstring> m_annotationIds;
    std::vector<wstring> m_ftaConstructedGeometryIds;
    std::vector<std::shared_ptr<ExcEntity>> m_linkedElements;
};

} // namespace vrx
