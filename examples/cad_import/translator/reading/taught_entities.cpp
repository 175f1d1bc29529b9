#include "reading/taught_entities.h"

#include "reading/step_record.h"
#include "reading/triangle_outline.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_GeneralLib.hxx>
#include <Interface_ReaderLib.hxx>
#include <Interface_ShareTool.hxx>
#include <StepAP214.hxx>
#include <StepAP214_Protocol.hxx>
#include <StepData_GeneralModule.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_ReadWriteModule.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_RepresentationContext.hxx>
#include <StepVisual_CoordinatesList.hxx>
#include <TColStd_HSequenceOfInteger.hxx>

#include <algorithm>
#include <vector>

namespace
{

using ItemArray = StepVisual_Array1OfTessellatedItem;

// The numbers under which the kernel's libraries ask for the entities.
const int kUnknown = 0;
const int kPlacedSet = 1;
const int kSurfaceSet = 2;
const int kShapedModel = 3;

void read(StepRecord record, PlacedTessellatedSet& set)
{
    set.place = record.component("REPOSITIONED_TESSELLATED_ITEM").entity<StepGeom_Axis2Placement3d>(1);
    const auto items = record.component("TESSELLATED_GEOMETRIC_SET").entities<StepVisual_TessellatedItem>(1);
    NCollection_Handle<ItemArray> array;
    if (!items.empty())
    {
        array = new ItemArray(1, static_cast<int>(items.size()));
        std::copy(items.begin(), items.end(), array->begin());
    }
    set.Init(record.component("REPRESENTATION_ITEM").text(1), array);
}

void read(StepRecord record, ShapedDraughtingModel& model)
{
    StepRecord part = record.component("REPRESENTATION");
    const auto items = part.entities<StepRepr_RepresentationItem>(2);
    Handle(StepRepr_HArray1OfRepresentationItem) array;
    if (!items.empty())
    {
        array = new StepRepr_HArray1OfRepresentationItem(1, static_cast<int>(items.size()));
        std::copy(items.begin(), items.end(), array->begin());
    }
    model.Init(part.text(1), array, part.entity<StepRepr_RepresentationContext>(3));
}

// A complex set has strips and fans of triangles, a simple one has single triangles where the other has strips. They
// refer to the points by way of the list of indices, unless that is empty.
void read(StepRecord record, OutlinedSurfaceSet& set)
{
    TriangleOutline outline;
    StepRecord strips = record.sublist(6);
    for (int i = 1; i <= strips.size(); ++i)
    {
        outline.addStrip(strips.integers(i));
    }
    if (record.size() >= 7)
    {
        StepRecord fans = record.sublist(7);
        for (int i = 1; i <= fans.size(); ++i)
        {
            outline.addFan(fans.integers(i));
        }
    }
    const std::vector<int> indices = record.integers(5);
    const auto point = [&](int index) {
        const bool known = index >= 1 && static_cast<std::size_t>(index) <= indices.size();
        return indices.empty() ? index : known ? indices[static_cast<std::size_t>(index - 1)] : 0;
    };
    NCollection_Handle<StepVisual_VectorOfHSequenceOfInteger> curves = new StepVisual_VectorOfHSequenceOfInteger;
    for (const std::vector<int>& line : outline.lines())
    {
        const Handle(TColStd_HSequenceOfInteger) curve = new TColStd_HSequenceOfInteger;
        for (const int index : line)
        {
            curve->Append(point(index));
        }
        curves->Append(curve);
    }
    set.Init(record.text(1), record.entity<StepVisual_CoordinatesList>(2), curves);
}

// All that the kernel reads, and the taught entities.
class Protocol : public StepData_Protocol
{
public:
    int NbResources() const override { return 1; }
    Handle(Interface_Protocol) Resource(int /*number*/) const override { return StepAP214::Protocol(); }
    Standard_CString SchemaName() const override { return StepAP214::Protocol()->SchemaName(); }
    int TypeNumber(const Handle(Standard_Type) & type) const override
    {
        return type == STANDARD_TYPE(PlacedTessellatedSet)    ? kPlacedSet
               : type == STANDARD_TYPE(OutlinedSurfaceSet)    ? kSurfaceSet
               : type == STANDARD_TYPE(ShapedDraughtingModel) ? kShapedModel
                                                              : kUnknown;
    }

    DEFINE_STANDARD_RTTI_INLINE(Protocol, StepData_Protocol)
};

// Recognises the taught entities in a file, and reads them.
class Reading : public StepData_ReadWriteModule
{
public:
    int CaseStep(const TCollection_AsciiString& type) const override
    {
        return type == "COMPLEX_TRIANGULATED_SURFACE_SET" || type == "TRIANGULATED_SURFACE_SET" ? kSurfaceSet
                                                                                                : kUnknown;
    }

    int CaseStep(const TColStd_SequenceOfAsciiString& types) const override
    {
        const auto has = [&](const char* type) { return std::find(types.begin(), types.end(), type) != types.end(); };
        if (has("REPOSITIONED_TESSELLATED_ITEM") && has("TESSELLATED_GEOMETRIC_SET"))
        {
            return kPlacedSet;
        }
        return has("DRAUGHTING_MODEL") && has("SHAPE_REPRESENTATION") ? kShapedModel : kUnknown;
    }

    void ReadStep(int number, const Handle(StepData_StepReaderData) & data, int record, Handle(Interface_Check) & check,
                  const Handle(Standard_Transient) & entity) const override
    {
        const StepRecord begin(*data, record, check);
        switch (number)
        {
        case kPlacedSet:
            return read(begin, *Handle(PlacedTessellatedSet)::DownCast(entity));
        case kSurfaceSet:
            return read(begin, *Handle(OutlinedSurfaceSet)::DownCast(entity));
        default:
            return read(begin, *Handle(ShapedDraughtingModel)::DownCast(entity));
        }
    }

    // What is read here is never written: the names of the types are of no use.
    const TCollection_AsciiString& StepType(int /*number*/) const override { return m_noType; }
    void WriteStep(int /*number*/, StepData_StepWriter& /*writer*/, const Handle(Standard_Transient) &
                   /*entity*/) const override
    {
    }

    DEFINE_STANDARD_RTTI_INLINE(Reading, StepData_ReadWriteModule)

private:
    TCollection_AsciiString m_noType;
};

// Makes the taught entities, and tells what they refer to. They are never copied, and have no checks but those of their
// reading.
class Making : public StepData_GeneralModule
{
public:
    bool NewVoid(int number, Handle(Standard_Transient) & entity) const override
    {
        switch (number)
        {
        case kPlacedSet:
            entity = new PlacedTessellatedSet;
            break;
        case kSurfaceSet:
            entity = new OutlinedSurfaceSet;
            break;
        default:
            entity = new ShapedDraughtingModel;
            break;
        }
        return true;
    }

    void FillSharedCase(int /*number*/, const Handle(Standard_Transient) & entity,
                        Interface_EntityIterator& shared) const override
    {
        if (const auto set = Handle(PlacedTessellatedSet)::DownCast(entity))
        {
            shared.AddItem(set->place);
            const NCollection_Handle<ItemArray> items = set->Items();
            for (int i = 1; !items.IsNull() && i <= items->Length(); ++i)
            {
                shared.AddItem(items->Value(i));
            }
        }
        else if (const auto surfaces = Handle(OutlinedSurfaceSet)::DownCast(entity))
        {
            shared.AddItem(surfaces->CoordList());
        }
        else if (const auto model = Handle(ShapedDraughtingModel)::DownCast(entity))
        {
            shared.AddItem(model->ContextOfItems());
            for (int i = 1; !model->Items().IsNull() && i <= model->NbItems(); ++i)
            {
                shared.AddItem(model->ItemsValue(i));
            }
        }
    }

    void CheckCase(int /*number*/, const Handle(Standard_Transient) & /*entity*/, const Interface_ShareTool& /*shares*/,
                   Handle(Interface_Check) &
                   /*check*/) const override
    {
    }

    void CopyCase(int /*number*/, const Handle(Standard_Transient) & /*from*/,
                  const Handle(Standard_Transient) & /*to*/, Interface_CopyTool& /*tool*/) const override
    {
    }

    DEFINE_STANDARD_RTTI_INLINE(Making, StepData_GeneralModule)
};

} // namespace

void teachEntities(XSControl_WorkSession& session)
{
    static const Handle(Protocol) kProtocol = [] {
        Handle(Protocol) protocol = new Protocol;
        Interface_GeneralLib::SetGlobal(new Making, protocol);
        Interface_ReaderLib::SetGlobal(new Reading, protocol);
        return protocol;
    }();
    session.SetProtocol(kProtocol);
}
