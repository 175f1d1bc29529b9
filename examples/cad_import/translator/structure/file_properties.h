#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <StepData_StepModel.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>

#include <map>
#include <set>

struct CadModel;

/// The properties that a file holds as text and numbers: those in its head, and the user-defined attributes of the
/// products and usages of a STEP file. The readers do not bring these into the XDE document.
class FileProperties
{
public:
    /// Each length in millimetres is multiplied by the scale.
    FileProperties(const CadModel& model, double scale);

    const vrx::ExcMiscData& head() const { return m_head; }

    struct SolidFigures
    {
        int aspect = 0; // the shape aspect of which they are stated
        vrx::ExcMiscData figures;
    };

    /// The figures that the file states of single solids, by the ids of their items. Those of the only solid of a part
    /// are figures of the part when it has no others.
    const std::map<int, SolidFigures>& ofSolids() const { return m_ofSolids; }

    /// Appends the attributes of a product definition or of a usage.
    void addTo(vrx::ExcMiscData& data, const Handle(Standard_Transient) & entity) const;

private:
    void readHead(const CadModel& model, const Handle(StepData_StepModel) & entities);
    void readAttributes(const CadModel& model, const Handle(StepRepr_PropertyDefinitionRepresentation) & attributes);

    void takeFiguresOfWholes(const CadModel& model);

    double m_scale;
    vrx::ExcMiscData m_head;
    std::map<const Standard_Transient*, vrx::ExcMiscData> m_attributes;
    std::map<int, SolidFigures> m_ofSolids;
    std::map<const Standard_Transient*, std::set<int>> m_solids; // with figures, by what owns an aspect without a name
    std::set<const Standard_Transient*> m_withFigures;           // of their own
};
