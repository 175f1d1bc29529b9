#include "reading/iges_document.h"

#include "import_progress.h"
#include "kernel/occt_text.h"
#include "reading/iges_entity.h"
#include "reading/import_settings.h"

#include <IGESBasic_SingularSubfigure.hxx>
#include <IGESBasic_SubfigureDef.hxx>
#include <IGESSolid_Face.hxx>
#include <IGESSolid_ManifoldSolid.hxx>
#include <IGESSolid_Shell.hxx>
#include <Interface_EntityIterator.hxx>
#include <Interface_Protocol.hxx>
#include <Quantity_Color.hxx>
#include <TDataStd_Name.hxx>
#include <TopoDS_Builder.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransferFailure.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>

namespace
{

using iges_entity::Entity;
using HiddenMode = vrx::ETranslateHiddenEntitiesModeType;

void setName(const TDF_Label& label, const std::string& name)
{
    TDataStd_Name::Set(label, occt_text::extended(name.c_str()));
}

bool saysSomething(const Entity& entity)
{
    Quantity_Color color;
    return !iges_entity::nameOf(entity).empty() || iges_entity::hasColor(entity, color);
}

} // namespace

IgesDocument::IgesDocument(IGESControl_Reader& reader, const ImportSettings& settings,
                           const Handle(TDocStd_Document) & document, ImportProgress& progress)
    : m_reader(reader)
    , m_settings(settings)
    , m_model(reader.IGESModel())
    , m_graph(m_model, reader.WS()->Protocol())
    , m_shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main()))
    , m_colors(XCAFDoc_DocumentTool::ColorTool(document->Main()))
    , m_layers(XCAFDoc_DocumentTool::LayerTool(document->Main()))
    , m_progress(progress)
    , m_expected(countOfShapes())
{
}

// Solids wherever they are, and what does not belong physically to others: curves of faces do, loose ones do not.
int IgesDocument::countOfShapes() const
{
    int count = 0;
    for (int i = 1; i <= m_model->NbEntities(); ++i)
    {
        const Entity entity = m_model->Entity(i);
        const bool standsByItself =
            entity->IsKind(STANDARD_TYPE(IGESSolid_ManifoldSolid)) || entity->SubordinateStatus() != 1;
        count += standsByItself && m_reader.WS()->TransferReader()->Recognize(entity) ? 1 : 0;
    }
    return count;
}

bool IgesDocument::build(const std::string& name)
{
    const std::vector<Entity> roots = wantedRoots();
    const std::vector<Item> items = itemsOf(roots, name);
    if (items.empty())
    {
        return !roots.empty();
    }
    const bool isOneThing = items.size() == 1 && items[0].place.IsIdentity() && !items[0].isHidden;
    if (!isOneThing)
    {
        assemblyOf(items, name);
    }
    m_shapes->UpdateAssemblies();
    return true;
}

bool IgesDocument::isKnown(const Entity& entity) const
{
    return m_reader.WS()->TransferReader()->Recognize(entity);
}

// Nothing that the kernel translates, and no other geometry, has the entity for a part of it.
bool IgesDocument::isRoot(const Entity& entity) const
{
    Interface_EntityIterator holders = m_graph.Sharings(entity);
    for (; holders.More(); holders.Next())
    {
        const Entity holder = Entity::DownCast(holders.Value());
        if (!holder.IsNull() && (isKnown(holder) || !iges_entity::isAssociativity(holder)))
        {
            return false;
        }
    }
    return true;
}

std::vector<Entity> IgesDocument::wantedRoots() const
{
    std::vector<Entity> roots;
    std::vector<Entity> others;
    for (int i = 1; i <= m_model->NbEntities(); ++i)
    {
        const Entity entity = m_model->Entity(i);
        const bool isDefinition = entity->IsKind(STANDARD_TYPE(IGESBasic_SubfigureDef));
        if (isRoot(entity) && (isKnown(entity) || iges_entity::bringsShapes(entity)))
        {
            roots.push_back(entity);
        }
        else if (m_settings.nonroots && iges_entity::isLogicallyDependent(entity) && !isDefinition)
        {
            others.push_back(entity);
        }
    }
    roots.insert(roots.end(), others.begin(), others.end());
    return roots;
}

bool IgesDocument::isWanted(const Entity& entity)
{
    if (!isShown(entity))
    {
        return false;
    }
    if (!isKnown(entity) && iges_entity::bringsShapes(entity) && !iges_entity::isAssociativity(entity))
    {
        m_untranslatable.Add(entity);
    }
    return isKnown(entity);
}

bool IgesDocument::isShown(const Entity& entity) const
{
    if (!iges_entity::isHidden(entity) || m_settings.hidden == HiddenMode::All)
    {
        return true;
    }
    if (m_settings.hidden == HiddenMode::None)
    {
        return false;
    }
    Interface_EntityIterator referring = m_graph.Sharings(entity);
    for (; referring.More(); referring.Next())
    {
        const Entity other = Entity::DownCast(referring.Value());
        if (!other.IsNull() && !iges_entity::isHidden(other))
        {
            return true;
        }
    }
    return false;
}

std::vector<IgesDocument::Item> IgesDocument::itemsOf(const std::vector<Entity>& members, const std::string& name)
{
    std::vector<Item> items;
    std::vector<Entity> loose;
    std::vector<Entity> hiddenLoose;
    for (const Entity& entity : members)
    {
        if (isWanted(entity))
        {
            if (Item item = itemOf(entity); !item.block.IsNull())
            {
                items.push_back(item);
            }
            else if (!shapeOf(entity).IsNull())
            {
                (iges_entity::isHidden(entity) ? hiddenLoose : loose).push_back(entity);
            }
        }
    }
    for (const auto* const entities : {&loose, &hiddenLoose})
    {
        if (!entities->empty())
        {
            Item item;
            item.block = looseOf(*entities, name);
            item.isPart = true;
            item.isHidden = entities == &hiddenLoose;
            items.push_back(item);
        }
    }
    return items;
}

// Without a block for loose geometry, and for what holds nothing.
IgesDocument::Item IgesDocument::itemOf(const Entity& entity)
{
    const double unit = m_model->GlobalSection().UnitValue();
    Item item;
    item.entity = entity;
    item.isHidden = iges_entity::isHidden(entity);
    const auto instance = Handle(IGESBasic_SingularSubfigure)::DownCast(entity);
    if (!instance.IsNull() || iges_entity::isContainer(entity))
    {
        const Entity container = instance.IsNull() ? entity : Entity(instance->Subfigure());
        const auto place = iges_entity::placeOf(entity, unit);
        if (!place)
        {
            m_untranslatable.Add(entity);
        }
        else if (!container.IsNull())
        {
            item.place = *place;
            item.block = blockOf(container);
        }
    }
    else if (const TopoDS_Shape shape = shapeOf(entity); !shape.IsNull() && shape.ShapeType() <= TopAbs_SHELL)
    {
        item.block = partOf(entity, shape);
        item.place = shape.Location();
        item.isPart = true;
    }
    return item;
}

TDF_Label IgesDocument::blockOf(const Entity& container)
{
    if (const TDF_Label* const known = m_blocks.Seek(container))
    {
        return *known;
    }
    m_blocks.Bind(container, TDF_Label()); // a damaged one may hold itself
    const std::string name = nameOf(container);
    const std::vector<Entity> members = iges_entity::membersOf(container);
    const std::vector<Item> items = itemsOf(members, name);
    const bool isOnePart = items.size() == 1 && items[0].isPart && (members.size() == 1 || items[0].entity.IsNull());
    TDF_Label block;
    if (isOnePart && items[0].place.IsIdentity() && !items[0].isHidden)
    {
        block = items[0].block;
        if (!iges_entity::nameOf(container).empty())
        {
            setName(block, name);
        }
    }
    else if (!items.empty())
    {
        block = assemblyOf(items, name);
    }
    m_blocks.Bind(container, block);
    return block;
}

TDF_Label IgesDocument::partOf(const Entity& entity, const TopoDS_Shape& body)
{
    if (const TDF_Label* const known = m_blocks.Seek(entity))
    {
        return *known;
    }
    const TDF_Label part = m_shapes->AddShape(body.Located(TopLoc_Location()), false);
    setName(part, nameOf(entity));
    setLook(part, entity);
    setLayers(part, entity);
    setFaceLooks(part, entity);
    m_blocks.Bind(entity, part);
    return part;
}

TDF_Label IgesDocument::looseOf(const std::vector<Entity>& entities, const std::string& name)
{
    TopoDS_Compound shape;
    TopoDS_Builder().MakeCompound(shape);
    for (const Entity& entity : entities)
    {
        TopoDS_Builder().Add(shape, shapeOf(entity));
    }
    const TDF_Label part = m_shapes->AddShape(shape, false);
    setName(part, name);
    for (const Entity& entity : entities)
    {
        const TDF_Label label = saysSomething(entity) ? m_shapes->AddSubShape(part, shapeOf(entity)) : TDF_Label();
        if (!label.IsNull())
        {
            setName(label, nameOf(entity));
            setLook(label, entity);
        }
        setLayers(part, entity);
    }
    return part;
}

TDF_Label IgesDocument::assemblyOf(const std::vector<Item>& items, const std::string& name)
{
    const TDF_Label assembly = m_shapes->NewShape();
    setName(assembly, name);
    for (const Item& item : items)
    {
        const TDF_Label component = m_shapes->AddComponent(assembly, item.block, item.place);
        const std::string own = item.entity.IsNull() ? std::string() : iges_entity::nameOf(item.entity);
        Handle(TDataStd_Name) blockName;
        if (!own.empty())
        {
            setName(component, own);
        }
        else if (item.block.FindAttribute(TDataStd_Name::GetID(), blockName))
        {
            TDataStd_Name::Set(component, blockName->Get());
        }
        if (!item.isPart)
        {
            setLook(component, item.entity);
        }
        if (item.isHidden)
        {
            m_colors->SetVisibility(component, false);
        }
    }
    return assembly;
}

bool IgesDocument::translate(const Entity& entity)
{
    m_progress.advance(m_translated++ / m_expected);
    try
    {
        return m_reader.TransferEntity(entity);
    }
    catch (const Transfer_TransferFailure&) // a damaged part of it has failed before
    {
        return false;
    }
}

// Null when the kernel cannot translate the entity.
TopoDS_Shape IgesDocument::shapeOf(const Entity& entity)
{
    const Handle(XSControl_TransferReader)& transfer = m_reader.WS()->TransferReader();
    if (iges_entity::isContainer(entity) || entity->IsKind(STANDARD_TYPE(IGESBasic_SingularSubfigure)))
    {
        return {};
    }
    if (m_untranslatable.Contains(entity))
    {
        return {};
    }
    if (!transfer->IsRecorded(entity) && !translate(entity))
    {
        m_untranslatable.Add(entity);
        return {};
    }
    const TopoDS_Shape shape = TransferBRep::ShapeResult(transfer->TransientProcess(), entity);
    if (!shape.IsNull() && !iges_entity::isRigid(shape.Location().Transformation()))
    {
        m_untranslatable.Add(entity);
        return {};
    }
    return shape;
}

std::string IgesDocument::nameOf(const Entity& entity) const
{
    const std::string own = iges_entity::nameOf(entity);
    return own.empty() ? m_model->StringLabel(entity)->ToCString() : own;
}

void IgesDocument::setLook(const TDF_Label& label, const Entity& entity)
{
    Quantity_Color color;
    if (!entity.IsNull() && iges_entity::hasColor(entity, color))
    {
        m_colors->SetColor(label, color, XCAFDoc_ColorGen);
    }
}

void IgesDocument::setLayers(const TDF_Label& label, const Entity& entity)
{
    for (const int layer : iges_entity::layersOf(entity))
    {
        m_layers->SetLayer(label, TCollection_ExtendedString(layer));
    }
}

// The faces of a solid or of a shell.
void IgesDocument::setFaceLooks(const TDF_Label& part, const Entity& entity)
{
    Interface_EntityIterator parts = m_graph.Shareds(entity);
    for (; parts.More(); parts.Next())
    {
        const Entity shared = Entity::DownCast(parts.Value());
        Quantity_Color color;
        if (shared->IsKind(STANDARD_TYPE(IGESSolid_Shell)))
        {
            setFaceLooks(part, shared);
        }
        else if (shared->IsKind(STANDARD_TYPE(IGESSolid_Face)) && iges_entity::hasColor(shared, color))
        {
            const TopoDS_Shape face = shapeOf(shared);
            const TDF_Label label = face.IsNull() ? TDF_Label() : m_shapes->AddSubShape(part, face);
            if (!label.IsNull())
            {
                m_colors->SetColor(label, color, XCAFDoc_ColorGen);
            }
        }
    }
}
