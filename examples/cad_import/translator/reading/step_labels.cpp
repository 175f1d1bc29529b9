#include "reading/step_labels.h"

#include "reading/cad_model.h"

#include <Interface_InterfaceModel.hxx>
#include <STEPConstruct_Tool.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

StepLabels::StepLabels(const CadModel& model)
{
    if (!model.step)
    {
        return;
    }
    const STEPCAFControl_Reader& reader = *model.step;
    const Handle(XSControl_WorkSession) session = reader.Reader().WS();
    const Handle(Transfer_TransientProcess) transfer = session->TransferReader()->TransientProcess();
    const Handle(Interface_InterfaceModel) entities = session->Model();
    const Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(model.document->Main());
    const STEPConstruct_Tool tool(session);

    for (int i = 1; i <= entities->NbEntities(); ++i)
    {
        const Handle(Standard_Transient) entity = entities->Value(i);
        const auto product = Handle(StepBasic_ProductDefinition)::DownCast(entity);
        if (!product.IsNull())
        {
            const TopoDS_Shape shape = TransferBRep::ShapeResult(transfer, product);
            TDF_Label label;
            if (!shape.IsNull() && (reader.GetShapeLabelMap().Find(shape, label) || shapes->FindShape(shape, label)))
            {
                m_products.Bind(label, product);
            }
        }
        const auto usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(entity);
        if (!usage.IsNull())
        {
            const TDF_Label label = STEPCAFControl_Reader::FindInstance(usage, shapes, tool, reader.GetShapeLabelMap());
            if (!label.IsNull())
            {
                m_usages.Bind(label, usage);
            }
        }
    }
}

Handle(StepBasic_ProductDefinition) StepLabels::productOf(const TDF_Label& label) const
{
    const Handle(StepBasic_ProductDefinition)* product = m_products.Seek(label);
    return product ? *product : Handle(StepBasic_ProductDefinition)();
}

Handle(StepRepr_NextAssemblyUsageOccurrence) StepLabels::usageOf(const TDF_Label& component) const
{
    const Handle(StepRepr_NextAssemblyUsageOccurrence)* usage = m_usages.Seek(component);
    return usage ? *usage : Handle(StepRepr_NextAssemblyUsageOccurrence)();
}
