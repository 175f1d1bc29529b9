#pragma once

#include "vrx_api/common/entity.h"
#include "vrx_api/mechanical/pmi_object.h"
#include "vrx_api/visualization/camera.h"
#include "vrx_api/visualization/clipping_plane.h"

#include <memory>
#include <vector>

namespace vrx
{

/// A saved presentation of the annotations: from where the part is seen, how it is cut, and what is shown. It names its
/// annotations by their ids, which the library does not resolve. Other than those of annotations, the name, the id and
/// the hidden flag of a capture cross. Copies share the camera, the clipping plane and the entities.
class VRX_API ExcPMICapture : public ExcPMIObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// A flag of its own beside `isHidden`.
    bool isCaptureHidden() const { return m_captureHidden; }
    void setCaptureHidden(bool hidden) { m_captureHidden = hidden; }

    bool isCurrent() const { return m_current; }
    void setCurrent(bool current) { m_current = current; }

    const wstring& hiddenText() const { return m_hiddenText; }
    void setHiddenText(const wstring& text) { m_hiddenText = text; }

    /// Null when there is none.
    const std::shared_ptr<ExcCamera>& camera() const { return m_camera; }
    void setCamera(const std::shared_ptr<ExcCamera>& camera) { m_camera = camera; }

    /// Null when there is none. A plane of neither form is written as JSON null, about which a reader logs.
    const std::shared_ptr<ExcClippingPlane>& clippingPlane() const { return m_clippingPlane; }
    void setClippingPlane(const std::shared_ptr<ExcClippingPlane>& plane) { m_clippingPlane = plane; }

    /// The annotations that are shown. Their ids do not cross, so that only the program that made them can tell which
    /// ones are meant.
    const std::vector<wstring>& annotationIds() const { return m_annotationIds; }
    void addAnnotationId(const wstring& id) { m_annotationIds.push_back(id); }

    /// The auxiliary geometry that belongs to the annotations.
    const std::vector<std::shared_ptr<ExcEntity>>& constructedGeometry() const { return m_constructedGeometry; }

    /// Appends; a null pointer is logged and adds nothing.
    void addConstructedGeometry(const std::shared_ptr<ExcEntity>& geometry);

    const std::vector<std::shared_ptr<ExcEntity>>& bodies() const { return m_bodies; }

    /// Appends; a null pointer is logged and adds nothing.
    void addBody(const std::shared_ptr<ExcEntity>& body);

    /// True when the capture also decides what is hidden and what is shown.
    bool manageHideShow() const { return m_manageHideShow; }
    void setManageHideShow(bool manage) { m_manageHideShow = manage; }

private:
    friend struct Described<ExcPMICapture>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    bool m_captureHidden = false;
    bool m_current = false;
    wstring m_hiddenText;
    std::shared_ptr<ExcCamera> m_camera;
    std::shared_ptr<ExcClippingPlane> m_clippingPlane;
    std::vector<wstring> m_annotationIds;
    std::vector<std::shared_ptr<ExcEntity>> m_constructedGeometry;
    std::vector<std::shared_ptr<ExcEntity>> m_bodies;
    bool m_manageHideShow = false;
};

} // namespace vrx
