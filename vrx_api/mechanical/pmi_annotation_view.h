#pragma once

#include "vrx_api/mechanical/pmi_datum.h"
#include "vrx_api/mechanical/pmi_datum_target.h"
#include "vrx_api/mechanical/pmi_dimension.h"
#include "vrx_api/mechanical/pmi_gdt.h"
#include "vrx_api/mechanical/pmi_note.h"
#include "vrx_api/mechanical/pmi_roughness.h"

#include <map>
#include <memory>
#include <vector>

namespace vrx
{

/// A plane in the model with the annotations that stand in it. Their 2D positions are meant in this plane. Copies share
/// the annotations.
class VRX_API ExcPMIAnnotationView : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The origin of the plane and the two vectors that span it, in the space of the model.
    const ExcVector3d& origin() const { return m_origin; }
    void setOrigin(const ExcVector3d& origin) { m_origin = origin; }
    const ExcVector3d& vectorU() const { return m_vectorU; }
    void setVectorU(const ExcVector3d& vector) { m_vectorU = vector; }
    const ExcVector3d& vectorV() const { return m_vectorV; }
    void setVectorV(const ExcVector3d& vector) { m_vectorV = vector; }

    const std::vector<std::shared_ptr<ExcPMINote>>& notes() const { return m_notes; }
    const std::vector<std::shared_ptr<ExcPMIDatum>>& datums() const { return m_datums; }
    const std::vector<std::shared_ptr<ExcPMIDatumTarget>>& datumTargets() const { return m_datumTargets; }
    const std::vector<std::shared_ptr<ExcPMIGDT>>& gdts() const { return m_gdts; }
    const std::vector<std::shared_ptr<ExcPMIDimension>>& dimensions() const { return m_dimensions; }
    const std::vector<std::shared_ptr<ExcPMIRoughness>>& roughness() const { return m_roughness; }

    /// Append; a null pointer is logged and adds nothing. Set the annotation's id before, so that it is found by it.
    void addNote(const std::shared_ptr<ExcPMINote>& note);
    void addDatum(const std::shared_ptr<ExcPMIDatum>& datum);
    void addDatumTarget(const std::shared_ptr<ExcPMIDatumTarget>& target);
    void addGdt(const std::shared_ptr<ExcPMIGDT>& gdt);
    void addDimension(const std::shared_ptr<ExcPMIDimension>& dimension);
    void addRoughness(const std::shared_ptr<ExcPMIRoughness>& roughness);

    /// The annotation of this view, of whichever kind, that was the first with this id when it came here, or null. Ids
    /// do not cross: of annotations that were read only the first one, in the order of the lists above, is found, under
    /// the empty id.
    std::shared_ptr<ExcPMIAnnotation> getAnnotationById(const wstring& id) const;

private:
    friend struct Described<ExcPMIAnnotationView>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ExcVector3d m_origin;
    ExcVector3d m_vectorU;
    ExcVector3d m_vectorV;
    std::vector<std::shared_ptr<ExcPMINote>> m_notes;
    std::vector<std::shared_ptr<ExcPMIDatum>> m_datums;
    std::vector<std::shared_ptr<ExcPMIDatumTarget>> m_datumTargets;
    std::vector<std::shared_ptr<ExcPMIGDT>> m_gdts;
    std::vector<std::shared_ptr<ExcPMIDimension>> m_dimensions;
    std::vector<std::shared_ptr<ExcPMIRoughness>> m_roughness;
    std::map<wstring, std::shared_ptr<ExcPMIAnnotation>> m_annotationIndex;
};

} // namespace vrx
