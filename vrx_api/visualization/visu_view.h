#pragma once

#include "vrx_api/common/vector.h"

#include <vector>

namespace vrx
{

/// A named view plane with the annotations that belong to it, which are named by their ids.
class VRX_API ExcVisuView : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& displayName() const { return m_displayName; }
    void setDisplayName(const wstring& name) { m_displayName = name; }

    /// By this id an `ExcEntity` points at the view.
    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    /// The view's counterpart in the mechanical data.
    const wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const wstring& id) { m_mechanicalId = id; }

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }

    const ExcVector3d& origin() const { return m_origin; }
    void setOrigin(const ExcVector3d& origin) { m_origin = origin; }

    const ExcVector3d& directionU() const { return m_directionU; }
    void setDirectionU(const ExcVector3d& direction) { m_directionU = direction; }

    const ExcVector3d& directionV() const { return m_directionV; }
    void setDirectionV(const ExcVector3d& direction) { m_directionV = direction; }

    const std::vector<wstring>& annotationIds() const { return m_annotationIds; }
    void addAnnotationId(const wstring& id) { m_annotationIds.push_back(id); }
    void setAnnotationIds(const std::vector<wstring>& ids) { m_annotationIds = ids; }

private:
    friend struct Described<ExcVisuView>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_displayName;
    wstring m_id;
    wstring m_mechanicalId;
    bool m_hidden = false;
    ExcVector3d m_origin;
    ExcVector3d m_directionU;
    ExcVector3d m_directionV;
    std::vector<wstring> m_annotationIds;
};

} // namespace vrx
