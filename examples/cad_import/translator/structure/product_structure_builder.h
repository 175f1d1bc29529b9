#pragma once

#include "reading/step_labels.h"
#include "structure/block_content.h"
#include "structure/file_properties.h"
#include "structure/instance_styles.h"
#include "structure/model_frame.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <TDF_LabelIndexedMap.hxx>
#include <TopoDS_Shape.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

struct CadModel;
struct ImportSettings;

/// Turns an XDE document into the product structure: each product as a block, each usage as a reference. A colour
/// stands at a reference, so an assembly is a block once more for each way down to an instance with a style of its own;
/// parts are one block each.
class ProductStructureBuilder
{
public:
    ProductStructureBuilder(const CadModel& model, const ImportSettings& settings);

    std::shared_ptr<vrx::ExcProductStructure> build();

    /// The ids of the blocks that were built go from 1 to this.
    std::uint64_t blockCount() const { return m_blocks.size(); }

    /// The label of a block's product; several blocks of one assembly have the same.
    const TDF_Label& labelOf(std::uint64_t block) const { return m_blocks[block - 1].label; }

    const ModelFrame& frame() const { return m_frame; }

    const FileProperties& properties() const { return m_properties; }

    /// All that a block shows, in the block's coordinates of the document; null for an assembly, which shows its
    /// components.
    TopoDS_Shape shapeOf(const vrx::ExcBlock& block) const;
    TopoDS_Shape shapeOf(std::uint64_t block) const;

    /// The product definition of the file behind a block's label, or null.
    Handle(StepBasic_ProductDefinition) productOf(const TDF_Label& label) const { return m_labels.productOf(label); }

    /// True for a product whose components, if any, are no products but its shapes.
    bool isPart(const TDF_Label& label) const;

    /// True for a product at the top, or a component of a product that is no part, that is not sent.
    bool isLeftOut(const TDF_Label& component) const;

private:
    struct Block
    {
        TDF_Label label;
        InstanceStyles::Entered styles;
    };

    void addRoot(const TDF_Label& label);
    std::shared_ptr<vrx::ExcBlock> block(const Block& from, std::uint64_t id);
    std::shared_ptr<vrx::ExcBlockReference> reference(const TDF_Label& component, InstanceStyles::Instance instance);
    std::uint64_t blockId(const TDF_Label& label, InstanceStyles::Entered styles);
    std::vector<TDF_Label> ownShapes(const TDF_Label& label) const;
    TopoDS_Shape shapeOf(const TDF_Label& product) const;

    const CadModel& m_model;
    const ImportSettings& m_settings;
    ModelFrame m_frame;
    StepLabels m_labels;
    FileProperties m_properties;
    std::shared_ptr<vrx::ExcProductStructure> m_structure;
    InstanceStyles m_styles;
    std::vector<Block> m_blocks;
    TDF_LabelIndexedMap m_products;
    std::map<std::pair<int, InstanceStyles::Entered>, std::uint64_t> m_ids; // of blocks, by product and styles
};
