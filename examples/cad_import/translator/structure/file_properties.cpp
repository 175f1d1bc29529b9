#include "structure/file_properties.h"

#include "common/property_names.h"
#include "kernel/occt_text.h"
#include "mp/narrow.h"
#include "reading/aspect_items.h"
#include "reading/cad_model.h"
#include "reading/step_measures.h"
#include "structure/iges_head.h"
#include "structure/misc_properties.h"

#include <APIHeaderSection_MakeHeader.hxx>
#include <IGESData_IGESModel.hxx>
#include <Interface_HArray1OfHAsciiString.hxx>
#include <StepBasic_MeasureValueMember.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepBasic_ProductDefinitionRelationship.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepRepr_DescriptiveRepresentationItem.hxx>
#include <StepRepr_MeasureRepresentationItem.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_ShapeAspect.hxx>
#include <StepRepr_ValueRepresentationItem.hxx>
#include <TColStd_SequenceOfAsciiString.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <set>
#include <string>
#include <vector>

namespace
{

using vrx::ExcMiscProperty;

const char kValidation[] = "geometric validation property";

// The others are written for a receiver to check its own work with, or are no free properties.
bool isAttribute(const std::string& name)
{
    static const std::set<std::string> kOthers = {"",
                                                  "attribute validation property",
                                                  "pmi validation property",
                                                  "assembly validation property",
                                                  "tessellated validation property",
                                                  "material property"};
    return kOthers.count(name) == 0;
}

// The product definition or usage of which the attribute tells; null for those of faces, documents and the like. Some
// writers hang the figures of a whole shape on an aspect without a name.
Handle(Standard_Transient) owner(const StepRepr_CharacterizedDefinition& described)
{
    const Handle(StepRepr_ShapeAspect) aspect = described.ShapeAspect();
    const bool isWhole = !aspect.IsNull() && !aspect->Name().IsNull() && aspect->Name()->IsEmpty();
    const Handle(StepRepr_ProductDefinitionShape) shape =
        isWhole ? aspect->OfShape() : described.ProductDefinitionShape();
    const StepRepr_CharacterizedDefinition definition = shape.IsNull() ? described : shape->Definition();
    if (!definition.ProductDefinition().IsNull())
    {
        return definition.ProductDefinition();
    }
    return definition.ProductDefinitionRelationship();
}

int idOf(const CadModel& model, const Handle(StepRepr_ShapeAspect) & aspect)
{
    return aspect.IsNull() ? 0 : model.step->Reader().StepModel()->IdentLabel(aspect);
}

// The item of the solid of which a shape aspect tells, or 0 when that is not one.
int onlySolid(const CadModel& model, const Handle(StepRepr_ShapeAspect) & aspect)
{
    const std::vector<int> solids = aspect_items::solids(model.records->find(idOf(model, aspect)));
    return solids.size() == 1 ? solids.front() : 0;
}

// True for a product of more than one solid.
bool hasSeveralSolids(const CadModel& model, const Standard_Transient* product)
{
    const Handle(Transfer_TransientProcess) transfer = model.step->Reader().WS()->TransferReader()->TransientProcess();
    const TopoDS_Shape shape = TransferBRep::ShapeResult(transfer, product);
    TopTools_IndexedMapOfShape solids;
    TopExp::MapShapes(shape, TopAbs_SOLID, solids);
    return solids.Extent() > 1;
}

void addItem(vrx::ExcMiscData& data, const mp::wstring& name, const Handle(StepRepr_RepresentationItem) & item,
             double factor)
{
    if (const auto text = Handle(StepRepr_DescriptiveRepresentationItem)::DownCast(item); !text.IsNull())
    {
        add(data, name, ExcMiscProperty::EType::String, occt_text::wide(text->Description()));
    }
    else if (const auto measure = Handle(StepRepr_MeasureRepresentationItem)::DownCast(item);
             !measure.IsNull() && !measure->Measure().IsNull())
    {
        add(data, name, inMillimetres(measure->Measure(), factor));
    }
    else if (const auto value = Handle(StepRepr_ValueRepresentationItem)::DownCast(item);
             !value.IsNull() && !value->ValueComponentMember().IsNull())
    {
        add(data, name, value->ValueComponentMember()->Real());
    }
    else if (const auto point = Handle(StepGeom_CartesianPoint)::DownCast(item);
             !point.IsNull() && point->NbCoordinates() == 3)
    {
        add(data, name, ExcMiscProperty::EType::String,
            numberText(point->CoordinatesValue(1) * factor) + WIDE(' ') +
                numberText(point->CoordinatesValue(2) * factor) + WIDE(' ') +
                numberText(point->CoordinatesValue(3) * factor));
    }
}

void addTexts(vrx::ExcMiscData& data, const mp::wchar* name, const Handle(Interface_HArray1OfHAsciiString) & texts)
{
    if (texts.IsNull())
    {
        return;
    }
    for (int i = texts->Lower(); i <= texts->Upper(); ++i)
    {
        addText(data, name, ExcMiscProperty::EType::String, occt_text::wide(texts->Value(i)));
    }
}

} // namespace

FileProperties::FileProperties(const CadModel& model, double scale)
    : m_scale(scale)
{
    if (model.iges)
    {
        m_head = igesHead(*model.iges->IGESModel(), model.namesUnit);
    }
    if (!model.step)
    {
        return;
    }
    const Handle(StepData_StepModel) entities = model.step->Reader().StepModel();
    readHead(model, entities);
    for (int i = 1; i <= entities->NbEntities(); ++i)
    {
        const auto attributes = Handle(StepRepr_PropertyDefinitionRepresentation)::DownCast(entities->Value(i));
        if (!attributes.IsNull())
        {
            readAttributes(model, attributes);
        }
    }
    takeFiguresOfWholes(model);
}

void FileProperties::readHead(const CadModel& model, const Handle(StepData_StepModel) & entities)
{
    const APIHeaderSection_MakeHeader head(entities);
    if (head.HasFs())
    {
        addTexts(m_head, WIDE("schema"), head.SchemaIdentifiers());
    }
    if (head.HasFd())
    {
        addTexts(m_head, WIDE("description"), head.Description());
    }
    if (head.HasFn())
    {
        addText(m_head, WIDE("file name"), ExcMiscProperty::EType::String, occt_text::wide(head.Name()));
        addText(m_head, WIDE("time stamp"), ExcMiscProperty::EType::DateTime, occt_text::wide(head.TimeStamp()));
        addTexts(m_head, WIDE("author"), head.Author());
        addTexts(m_head, WIDE("organization"), head.Organization());
        addText(m_head, WIDE("originating system"), ExcMiscProperty::EType::String,
                occt_text::wide(head.OriginatingSystem()));
        addText(m_head, WIDE("preprocessor version"), ExcMiscProperty::EType::String,
                occt_text::wide(head.PreprocessorVersion()));
        addText(m_head, WIDE("authorization"), ExcMiscProperty::EType::String, occt_text::wide(head.Authorisation()));
    }
    TColStd_SequenceOfAsciiString lengths;
    TColStd_SequenceOfAsciiString angles;
    TColStd_SequenceOfAsciiString solidAngles;
    model.step->ChangeReader().FileUnits(lengths, angles, solidAngles);
    for (int i = 1; i <= lengths.Length(); ++i)
    {
        addText(m_head, property_names::kFileLengthUnit, ExcMiscProperty::EType::String,
                mp::toWide(lengths(i).ToCString()));
    }
}

void FileProperties::readAttributes(const CadModel& model,
                                    const Handle(StepRepr_PropertyDefinitionRepresentation) & attributes)
{
    const Handle(StepRepr_PropertyDefinition) definition = attributes->Definition().PropertyDefinition();
    const Handle(StepRepr_Representation) values = attributes->UsedRepresentation();
    if (definition.IsNull() || definition->Name().IsNull() || values.IsNull())
    {
        return;
    }
    const std::string name = definition->Name()->ToCString();
    const int solid = name == kValidation ? onlySolid(model, definition->Definition().ShapeAspect()) : 0;
    const Handle(Standard_Transient) entity = owner(definition->Definition());
    if ((entity.IsNull() && solid == 0) || !isAttribute(name))
    {
        return;
    }
    if (name == kValidation && definition->Definition().ShapeAspect().IsNull())
    {
        m_withFigures.insert(entity.get());
    }
    if (solid != 0)
    {
        m_ofSolids[solid].aspect = idOf(model, definition->Definition().ShapeAspect());
    }
    if (solid != 0 && !entity.IsNull())
    {
        m_solids[entity.get()].insert(solid);
    }
    vrx::ExcMiscData& data = solid != 0 ? m_ofSolids[solid].figures : m_attributes[entity.get()];
    // A validation property is a group of figures, each of which has its own name: "volume measure" and so on.
    const double factor = lengthFactor(values) * m_scale;
    for (int i = 1; i <= values->NbItems(); ++i)
    {
        const Handle(StepRepr_RepresentationItem) item = values->ItemsValue(i);
        if (item.IsNull()) // in a damaged file
        {
            continue;
        }
        addItem(data, occt_text::wide(name == kValidation ? item->Name() : definition->Name()), item, factor);
    }
}

// Many writers state the figures of a part of one solid with that solid only.
void FileProperties::takeFiguresOfWholes(const CadModel& model)
{
    for (const auto& [entity, solids] : m_solids)
    {
        const auto figures = m_ofSolids.find(*solids.begin());
        if (solids.size() > 1 || m_withFigures.count(entity) > 0 || figures == m_ofSolids.end() ||
            hasSeveralSolids(model, entity))
        {
            continue;
        }
        for (const ExcMiscProperty& property : figures->second.figures.properties())
        {
            m_attributes[entity].emplaceProperty(property);
        }
        m_ofSolids.erase(figures);
    }
}

void FileProperties::addTo(vrx::ExcMiscData& data, const Handle(Standard_Transient) & entity) const
{
    const auto found = m_attributes.find(entity.get());
    if (found == m_attributes.end())
    {
        return;
    }
    for (const ExcMiscProperty& property : found->second.properties())
    {
        data.emplaceProperty(property);
    }
}
