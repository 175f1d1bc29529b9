#include "vise_threads.h"

#include "common/mechanical_conventions.h"
#include "mp/narrow.h"

#include <BRepAdaptor_Surface.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <STEPConstruct.hxx>
#include <StepAP242_GeometricItemSpecificUsage.hxx>
#include <StepAP242_ItemIdentifiedRepresentationUsageDefinition.hxx>
#include <StepBasic_LengthUnit.hxx>
#include <StepBasic_MeasureValueMember.hxx>
#include <StepBasic_SiUnitAndLengthUnit.hxx>
#include <StepBasic_Unit.hxx>
#include <StepData_StepModel.hxx>
#include <StepGeom_GeomRepContextAndGlobUnitAssCtxAndGlobUncertaintyAssCtx.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_DescriptiveRepresentationItem.hxx>
#include <StepRepr_GlobalUnitAssignedContext.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_MeasureRepresentationItem.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepRepr_ShapeAspect.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <Transfer_FinderProcess.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_TransferWriter.hxx>
#include <XSControl_WorkSession.hxx>
#include <gp_Cylinder.hxx>

#include <cmath>
#include <stdexcept>
#include <string>
#include <vector>

namespace vise
{

namespace
{

Handle(TCollection_HAsciiString) text(const mp::wchar* value)
{
    return new TCollection_HAsciiString(mp::toNarrow(value).c_str());
}

TopoDS_Shape partNamed(const Handle(TDocStd_Document) & document, const char* name)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetShapes(labels);
    for (const TDF_Label& label : labels)
    {
        Handle(TDataStd_Name) found;
        if (label.FindAttribute(TDataStd_Name::GetID(), found) && found->Get() == TCollection_ExtendedString(name))
        {
            return XCAFDoc_ShapeTool::GetShape(label);
        }
    }
    throw std::runtime_error(std::string("no part ") + name);
}

std::vector<TopoDS_Face> cylinders(const TopoDS_Shape& part, double radius)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(part, TopAbs_FACE, faces);
    std::vector<TopoDS_Face> found;
    for (int i = 1; i <= faces.Extent(); ++i)
    {
        const BRepAdaptor_Surface surface(TopoDS::Face(faces(i)), false);
        if (surface.GetType() == GeomAbs_Cylinder && std::abs(surface.Cylinder().Radius() - radius) < 1e-6)
        {
            found.push_back(TopoDS::Face(faces(i)));
        }
    }
    return found;
}

class ThreadWriter
{
public:
    explicit ThreadWriter(STEPCAFControl_Writer& writer)
        : m_model(Handle(StepData_StepModel)::DownCast(writer.ChangeWriter().WS()->Model()))
        , m_made(writer.ChangeWriter().WS()->TransferWriter()->FinderProcess())
    {
    }

    void add(const Thread& thread, const TopoDS_Shape& part, const TopoDS_Face& face)
    {
        const Handle(StepShape_ShapeDefinitionRepresentation) shape = shapeOf(part);
        const Handle(StepRepr_RepresentationItem) item = STEPConstruct::FindEntity(m_made, face);
        if (shape.IsNull() || item.IsNull())
        {
            throw std::runtime_error(std::string("the writer has made nothing of a face of ") + thread.part);
        }
        const Handle(StepRepr_ShapeAspect) aspect = new StepRepr_ShapeAspect;
        aspect->Init(text(mechanical_conventions::kThread), new TCollection_HAsciiString(thread.designation),
                     Handle(StepRepr_ProductDefinitionShape)::DownCast(shape->Definition().PropertyDefinition()),
                     StepData_LTrue);
        addUsage(aspect, item, shape->UsedRepresentation());
        addProperty(aspect, thread, shape->UsedRepresentation()->ContextOfItems());
    }

private:
    // What says that this is the shape of a part.
    Handle(StepShape_ShapeDefinitionRepresentation) shapeOf(const TopoDS_Shape& part) const
    {
        const Handle(StepRepr_RepresentationItem) solid = STEPConstruct::FindEntity(m_made, part);
        for (int i = 1; i <= m_model->NbEntities(); ++i)
        {
            auto shape = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(m_model->Value(i));
            const Handle(StepRepr_Representation) made =
                shape.IsNull() ? Handle(StepRepr_Representation)() : shape->UsedRepresentation();
            for (int item = 1; !made.IsNull() && item <= made->NbItems(); ++item)
            {
                if (made->ItemsValue(item) == solid)
                {
                    return shape;
                }
            }
        }
        return nullptr;
    }

    void addUsage(const Handle(StepRepr_ShapeAspect) & aspect, const Handle(StepRepr_RepresentationItem) & item,
                  const Handle(StepRepr_Representation) & representation)
    {
        StepAP242_ItemIdentifiedRepresentationUsageDefinition definition;
        definition.SetValue(aspect);
        const Handle(StepRepr_HArray1OfRepresentationItem) items = new StepRepr_HArray1OfRepresentationItem(1, 1);
        items->SetValue(1, item);
        const Handle(StepAP242_GeometricItemSpecificUsage) usage = new StepAP242_GeometricItemSpecificUsage;
        usage->Init(text(WIDE("")), text(WIDE("")), definition, representation, items);
        m_model->AddWithRefs(usage);
    }

    void addProperty(const Handle(StepRepr_ShapeAspect) & aspect, const Thread& thread,
                     const Handle(StepRepr_RepresentationContext) & context)
    {
        namespace names = mechanical_conventions;
        const std::vector<Handle(StepRepr_RepresentationItem)> all = {
            textItem(names::kThreadDesignation, thread.designation),
            textItem(names::kThreadKind, thread.isInternal ? "internal" : "external"),
            textItem(names::kThreadHand, "right"),
            lengthItem(names::kThreadDiameter, thread.diameter, context),
            lengthItem(names::kThreadPitch, thread.pitch, context),
            lengthItem(names::kThreadDepth, thread.depth, context),
        };
        const Handle(StepRepr_HArray1OfRepresentationItem) items =
            new StepRepr_HArray1OfRepresentationItem(1, static_cast<int>(all.size()));
        for (std::size_t i = 0; i < all.size(); ++i)
        {
            items->SetValue(static_cast<int>(i) + 1, all[i]);
        }
        const Handle(StepRepr_Representation) representation = new StepRepr_Representation;
        representation->Init(text(names::kThread), items, context);

        StepRepr_CharacterizedDefinition owner;
        owner.SetValue(aspect);
        const Handle(StepRepr_PropertyDefinition) property = new StepRepr_PropertyDefinition;
        property->Init(text(names::kThread), true, text(WIDE("")), owner);
        StepRepr_RepresentedDefinition represented;
        represented.SetValue(property);
        const Handle(StepRepr_PropertyDefinitionRepresentation) link = new StepRepr_PropertyDefinitionRepresentation;
        link->Init(represented, representation);
        m_model->AddWithRefs(link);
    }

    static Handle(StepRepr_DescriptiveRepresentationItem) textItem(const mp::wchar* name, const char* value)
    {
        Handle(StepRepr_DescriptiveRepresentationItem) item = new StepRepr_DescriptiveRepresentationItem;
        item->Init(text(name), new TCollection_HAsciiString(value));
        return item;
    }

    static Handle(StepRepr_MeasureRepresentationItem)
        lengthItem(const mp::wchar* name, double value, const Handle(StepRepr_RepresentationContext) & context)
    {
        const Handle(StepBasic_MeasureValueMember) member = new StepBasic_MeasureValueMember;
        member->SetName("LENGTH_MEASURE");
        member->SetReal(value);
        StepBasic_Unit unit;
        const auto units = Handle(StepGeom_GeomRepContextAndGlobUnitAssCtxAndGlobUncertaintyAssCtx)::DownCast(context)
                               ->GlobalUnitAssignedContext();
        for (int i = 1; i <= units->NbUnits(); ++i)
        {
            if (units->UnitsValue(i)->IsKind(STANDARD_TYPE(StepBasic_SiUnitAndLengthUnit)))
            {
                unit.SetValue(units->UnitsValue(i));
            }
        }
        Handle(StepRepr_MeasureRepresentationItem) item = new StepRepr_MeasureRepresentationItem;
        item->Init(text(name), member, unit);
        return item;
    }

    Handle(StepData_StepModel) m_model;
    Handle(Transfer_FinderProcess) m_made;
};

} // namespace

void addThreads(STEPCAFControl_Writer& writer, const Handle(TDocStd_Document) & document)
{
    ThreadWriter threads(writer);
    for (const Thread& thread : kThreads)
    {
        const TopoDS_Shape part = partNamed(document, thread.part);
        const std::vector<TopoDS_Face> faces = cylinders(part, thread.radius);
        if (faces.empty())
        {
            throw std::runtime_error(std::string("nothing to thread on ") + thread.part);
        }
        for (const TopoDS_Face& face : faces)
        {
            threads.add(thread, part, face);
        }
    }
}

} // namespace vise
