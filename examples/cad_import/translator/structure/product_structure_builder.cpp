#include "structure/product_structure_builder.h"

#include "common/property_names.h"
#include "kernel/occt_text.h"
#include "kernel/occt_transformation.h"
#include "mp/narrow.h"
#include "reading/cad_model.h"
#include "reading/import_settings.h"
#include "structure/block_content.h"
#include "structure/component_labels.h"
#include "structure/misc_properties.h"

#include <BRep_Builder.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <TDataStd_Name.hxx>
#include <TopoDS_Compound.hxx>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace
{

mp::wstring nameOf(const TDF_Label& label)
{
    Handle(TDataStd_Name) name;
    return label.FindAttribute(TDataStd_Name::GetID(), name) ? occt_text::wide(name->Get()) : mp::wstring();
}

vrx::ExcTransformation transformation(const TDF_Label& component)
{
    return occt_transformation::of(XCAFDoc_ShapeTool::GetLocation(component));
}

void addPartNumber(vrx::ExcMiscData& data, const Handle(StepBasic_ProductDefinition) & definition)
{
    const Handle(StepBasic_ProductDefinitionFormation) version = definition->Formation();
    if (version.IsNull() || version->OfProduct().IsNull())
    {
        return;
    }
    const auto type = vrx::ExcMiscProperty::EType::String;
    add(data, property_names::kPartNumber, type, occt_text::wide(version->OfProduct()->Id()));
    const mp::wstring versionId = occt_text::wide(version->Id());
    if (!versionId.empty())
    {
        add(data, property_names::kVersion, type, versionId);
    }
}

void clearProperties(vrx::ExcProductStructure& structure)
{
    structure.miscData().clearProperties();
    for (const auto& root : structure.rootBlockReferences())
    {
        root->miscData().clearProperties();
    }
    for (const auto& block : structure.blocks())
    {
        block->miscData().clearProperties();
        for (const auto& reference : block->blockReferences())
        {
            reference->miscData().clearProperties();
        }
    }
}

} // namespace

ProductStructureBuilder::ProductStructureBuilder(const CadModel& model, const ImportSettings& settings)
    : m_model(model)
    , m_settings(settings)
    , m_frame(model, settings)
    , m_labels(model)
    , m_properties(model, m_frame.scale())
    , m_styles(model.document)
{
}

std::shared_ptr<vrx::ExcProductStructure> ProductStructureBuilder::build()
{
    m_structure = std::make_shared<vrx::ExcProductStructure>();
    m_structure->setUnits(m_frame.unit());
    m_structure->miscData() = m_properties.head();

    for (const TDF_Label& root : component_labels::roots(m_model.document))
    {
        if (!isLeftOut(root))
        {
            addRoot(root);
        }
    }
    // A block's references append the blocks that they name, so this goes down the whole tree.
    for (std::uint64_t id = 1; id <= m_blocks.size(); ++id)
    {
        m_structure->addBlock(block(Block(m_blocks[id - 1]), id));
    }
    const auto& rootReferences = m_structure->rootBlockReferences();
    m_structure->setProductName(rootReferences.size() == 1
                                    ? rootReferences.front()->name()
                                    : mp::toWide(std::filesystem::path(m_model.path).stem().string()));
    if (m_settings.structure != vrx::EProductStructureMode::AsMechanicalComponents)
    {
        clearProperties(*m_structure);
    }
    return m_structure;
}

TopoDS_Shape ProductStructureBuilder::shapeOf(const vrx::ExcBlock& block) const
{
    return block.isPart() ? shapeOf(labelOf(block.id())) : TopoDS_Shape();
}

TopoDS_Shape ProductStructureBuilder::shapeOf(std::uint64_t block) const
{
    const std::shared_ptr<vrx::ExcBlock> found = m_structure->getBlockById(block);
    return found ? shapeOf(*found) : TopoDS_Shape();
}

// The document's own shape of a product holds the hidden components too.
TopoDS_Shape ProductStructureBuilder::shapeOf(const TDF_Label& product) const
{
    if (isPart(product) || m_settings.hiddenParts != vrx::EHiddenPartsMode::DoNotImport)
    {
        return XCAFDoc_ShapeTool::GetShape(product);
    }
    TopoDS_Compound compound;
    BRep_Builder().MakeCompound(compound);
    for (const TDF_Label& component : component_labels::of(product))
    {
        const TopoDS_Shape shape =
            isLeftOut(component) ? TopoDS_Shape() : shapeOf(component_labels::referred(component));
        if (!shape.IsNull())
        {
            BRep_Builder().Add(compound, shape.Moved(XCAFDoc_ShapeTool::GetLocation(component)));
        }
    }
    return compound;
}

void ProductStructureBuilder::addRoot(const TDF_Label& label)
{
    const std::shared_ptr<vrx::ExcBlockReference> root = reference(label, {});
    root->setName(nameOf(component_labels::referred(label)));
    root->setTransformation(m_frame.placed(transformation(label)));
    m_structure->addRootBlockReference(root);
}

std::shared_ptr<vrx::ExcBlock> ProductStructureBuilder::block(const Block& from, std::uint64_t id)
{
    const TDF_Label& label = from.label;
    auto block = std::make_shared<vrx::ExcBlock>();
    block->setId(id);
    block->setName(nameOf(label));
    block->setStorageName(mp::toWide(std::filesystem::path(m_model.path).filename().string()));

    const Handle(StepBasic_ProductDefinition) product = m_labels.productOf(label);
    if (!product.IsNull())
    {
        addPartNumber(block->miscData(), product);
        m_properties.addTo(block->miscData(), product);
    }
    block->setPart(m_settings.structure == vrx::EProductStructureMode::None || isPart(label));
    const BlockContent content(label, ownShapes(label));
    if (block->isPart())
    {
        content.addCounts(block->miscData());
    }
    else
    {
        for (const TDF_Label& component : component_labels::of(label))
        {
            InstanceStyles::Instance instance = m_styles.of(component, from.styles);
            const bool isHidden = instance.hidden && m_settings.hiddenParts == vrx::EHiddenPartsMode::DoNotImport;
            if (!isHidden && !isLeftOut(component))
            {
                block->addBlockReference(reference(component, std::move(instance)));
            }
        }
    }
    return block;
}

std::shared_ptr<vrx::ExcBlockReference> ProductStructureBuilder::reference(const TDF_Label& component,
                                                                           InstanceStyles::Instance instance)
{
    const TDF_Label target = component_labels::referred(component);
    const BlockContent content(target, ownShapes(target));

    auto reference = std::make_shared<vrx::ExcBlockReference>();
    reference->setGuid(vrx::IExchangeObject::generateUUID());
    reference->setBlockId(blockId(target, std::move(instance.below)));
    reference->setTransformation(m_frame.scaled(transformation(component)));

    const vrx::ExcColor own = BlockContent::colorOf(component);
    reference->setColor(instance.color.hasRGB() ? instance.color : own.hasRGB() ? own : content.color());
    reference->setHidden(m_settings.hiddenParts != vrx::EHiddenPartsMode::ImportShow &&
                         (instance.hidden || component_labels::isHidden(component)));

    const Handle(StepRepr_NextAssemblyUsageOccurrence) usage = m_labels.usageOf(component);
    const bool isNamed =
        !m_model.step || !usage.IsNull(); // XDE has names of its own for other components of STEP files
    reference->setName(nameOf(isNamed ? component : target));
    if (!usage.IsNull())
    {
        reference->setPersistentId(occt_text::wide(usage->Id()));
        m_properties.addTo(reference->miscData(), usage);
    }
    return reference;
}

std::uint64_t ProductStructureBuilder::blockId(const TDF_Label& label, InstanceStyles::Entered styles)
{
    if (!styles.empty() && isPart(label))
    {
        styles.clear();
    }
    const auto [known, isNew] = m_ids.insert({{m_products.Add(label), std::move(styles)}, m_blocks.size() + 1});
    if (isNew)
    {
        m_blocks.push_back({label, known->first.second});
    }
    return known->second;
}

// The shapes of a part that XDE has made an assembly of, as it does with the products of STEP files.
std::vector<TDF_Label> ProductStructureBuilder::ownShapes(const TDF_Label& label) const
{
    std::vector<TDF_Label> shapes;
    if (isPart(label))
    {
        for (const TDF_Label& component : component_labels::of(label))
        {
            shapes.push_back(component_labels::referred(component));
        }
    }
    return shapes;
}

bool ProductStructureBuilder::isPart(const TDF_Label& label) const
{
    if (!m_model.step)
    {
        return !XCAFDoc_ShapeTool::IsAssembly(label);
    }
    const std::vector<TDF_Label> all = component_labels::of(label);
    return std::none_of(all.begin(), all.end(), [this](const TDF_Label& component) {
        return !m_labels.productOf(component_labels::referred(component)).IsNull();
    });
}

bool ProductStructureBuilder::isLeftOut(const TDF_Label& component) const
{
    return m_settings.hiddenParts == vrx::EHiddenPartsMode::DoNotImport && component_labels::isHidden(component);
}
