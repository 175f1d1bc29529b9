#pragma once

#include "vrx_api/common/entity.h"
#include "vrx_api/mechanical/pmi_annotation_view.h"
#include "vrx_api/mechanical/pmi_capture.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vrx
{

/// The annotations of one block: the views in which they stand, the captures that show them, and the geometry that was
/// constructed for them. Copies share all of these.
class VRX_API ExcPMIAnnotationSet : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The id of an `ExcBlock`; the library does not resolve it.
    std::uint64_t blockId() const { return m_blockId; }
    void setBlockId(std::uint64_t id) { m_blockId = id; }

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }

    /// The name of the standard by which the annotations are meant, such as "ISO"; spelt as on the wire.
    const wstring& standart() const { return m_standart; }
    void setStandart(const wstring& standart) { m_standart = standart; }

    /// Views are written under "views" and read under "annotation_views": a set that was written arrives without them.
    const std::vector<std::shared_ptr<ExcPMIAnnotationView>>& views() const { return m_views; }

    const std::vector<std::shared_ptr<ExcPMICapture>>& captures() const { return m_captures; }
    const std::vector<std::shared_ptr<ExcEntity>>& constructedGeometry() const { return m_constructedGeometry; }

    /// Append; a null pointer is logged and adds nothing.
    void addView(const std::shared_ptr<ExcPMIAnnotationView>& view);
    void addCapture(const std::shared_ptr<ExcPMICapture>& capture);
    void addConstructedGeometry(const std::shared_ptr<ExcEntity>& geometry);

private:
    friend struct Described<ExcPMIAnnotationSet>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::uint64_t m_blockId = 0;
    wstring m_name;
    bool m_hidden = false;
    wstring m_standart;
    std::vector<std::shared_ptr<ExcPMIAnnotationView>> m_views;
    std::vector<std::shared_ptr<ExcPMICapture>> m_captures;
    std::vector<std::shared_ptr<ExcEntity>> m_constructedGeometry;
};

} // namespace vrx
