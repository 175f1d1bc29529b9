#include "mechanical/layers.h"

#include "kernel/occt_text.h"
#include "mechanical/entities.h"
#include "mechanical/mechanical_data.h"
#include "mp/narrow.h"
#include "pmi/drawn_pmi.h"
#include "pmi/item_parameters.h"
#include "reading/cad_model.h"
#include "reading/step_layers.h"
#include "structure/product_structure_builder.h"

#include <StepVisual_StyledItem.hxx>
#include <TColStd_HSequenceOfExtendedString.hxx>
#include <TDF_LabelSequence.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_LayerTool.hxx>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>

namespace
{

std::optional<std::int32_t> numberIn(const mp::wstring& name)
{
    const std::string text = mp::toNarrow(name);
    std::int32_t number = 0;
    const std::from_chars_result end = std::from_chars(text.data(), text.data() + text.size(), number);
    return end.ec == std::errc() && end.ptr == text.data() + text.size() && number >= 0 ? std::optional(number)
                                                                                        : std::nullopt;
}

// The description where it is more than the name. Some writers put there whether the layer is visible.
mp::wstring nameOf(const StepLayer& layer)
{
    const mp::wstring& text = layer.description;
    const bool isState = text == WIDE("visible") || text == WIDE("invisible") || text == WIDE("hidden");
    const bool saysMore = text.find(layer.name) != mp::wstring::npos || numberIn(layer.name);
    return !text.empty() && !isState && saysMore ? text : layer.name;
}

TopoDS_Shape shapeOf(int item, const CadModel& model, const ShapeLinks& links)
{
    const auto styled = model.records->entity<StepVisual_StyledItem>(item);
    return styled.IsNull() ? links.shapeOf(item) : links.shapeOf(styled->Item());
}

// Layers while they are put together, block by block.
class Layers
{
public:
    Layers(MechanicalData& data, const std::vector<mp::wstring>& names)
        : m_data(data)
    {
        for (const mp::wstring& name : names)
        {
            const std::optional<std::int32_t> number = numberIn(name);
            if (number && m_used.insert(*number).second)
            {
                m_ids[name] = *number;
            }
        }
        std::int32_t next = 0;
        for (const mp::wstring& name : names)
        {
            while (m_ids.count(name) == 0)
            {
                if (m_used.insert(++next).second)
                {
                    m_ids[name] = next;
                }
            }
        }
    }

    void add(const mp::wstring& name, const mp::wstring& shownName, const ShapeLinks::Link& link)
    {
        if (m_known.insert({name, link.block, link.shape, link.place}).second)
        {
            of(name, shownName, link.block).addEntity(link.entity);
        }
    }

    void add(const mp::wstring& name, const mp::wstring& shownName, std::uint64_t block, const mp::wstring& annotation)
    {
        if (m_knownAnnotations.insert({name, annotation}).second)
        {
            of(name, shownName, block).addEntity(entities::ofScene(annotation));
        }
    }

private:
    vrx::ExcMiscLayer& of(const mp::wstring& name, const mp::wstring& shownName, std::uint64_t block)
    {
        std::shared_ptr<vrx::ExcMiscLayer>& layer = m_layers[{name, block}];
        if (!layer)
        {
            layer = std::make_shared<vrx::ExcMiscLayer>();
            layer->setId(m_ids[name]);
            layer->setName(shownName);
            m_data.misc(block).addLayer(layer);
        }
        return *layer;
    }

    MechanicalData& m_data;
    std::set<std::int32_t> m_used;
    std::map<mp::wstring, std::int32_t> m_ids; // of layers, by name
    std::map<std::pair<mp::wstring, std::uint64_t>, std::shared_ptr<vrx::ExcMiscLayer>> m_layers;
    std::set<std::tuple<mp::wstring, std::uint64_t, const TopoDS_TShape*, std::size_t>> m_known;
    std::set<std::pair<mp::wstring, mp::wstring>> m_knownAnnotations;
};

void gather(const StepParameter& items, const mp::wstring& id, std::map<int, mp::wstring>& ids)
{
    if (items.reference != 0)
    {
        ids.insert({items.reference, id});
    }
    for (const StepParameter& item : items.list)
    {
        gather(item, id, ids);
    }
}

// The ids of annotations by all that they consist of: many writers put the curves on a layer, not the annotation.
std::map<int, mp::wstring> annotationItems(const DrawnPmi& drawn, const std::map<int, mp::wstring>& drawnIds)
{
    std::map<int, mp::wstring> ids;
    for (const DrawnAnnotation& annotation : drawn.annotations)
    {
        const auto id = drawnIds.find(annotation.record.id());
        if (id == drawnIds.end())
        {
            continue;
        }
        for (const StepRecord& part : annotationParts(annotation.record))
        {
            ids.insert({part.id(), id->second});
            for (const StepRecord& item : item_parameters::records(part, "STYLED_ITEM", 1))
            {
                ids.insert({item.id(), id->second});
                for (const char* const type : {"GEOMETRIC_SET", "TESSELLATED_GEOMETRIC_SET"})
                {
                    gather(item_parameters::parameter(item, type, 0), id->second, ids);
                }
            }
        }
    }
    return ids;
}

// Annotations are named by their places, which begin with the block; those of the product as a whole are on the layers
// of the block at the top.
std::uint64_t blockOf(const mp::wstring& annotation)
{
    const std::string text = mp::toNarrow(annotation);
    std::uint64_t block = 0;
    std::from_chars(text.data(), text.data() + text.size(), block);
    return std::max<std::uint64_t>(block, 1);
}

void addStepLayers(MechanicalData& data, const CadModel& model, ShapeLinks& links,
                   const std::map<int, mp::wstring>& annotations, bool showHidden)
{
    const std::vector<StepLayer> all = stepLayers(*model.records);
    std::vector<mp::wstring> names;
    std::transform(all.begin(), all.end(), std::back_inserter(names),
                   [](const StepLayer& layer) { return layer.name; });
    Layers layers(data, names);
    std::map<mp::wstring, bool> areHidden; // by annotation
    for (const StepLayer& layer : all)
    {
        const mp::wstring name = nameOf(layer);
        for (const StepLayer::Item& item : layer.items)
        {
            const auto annotation = annotations.find(item.id);
            if (annotation != annotations.end())
            {
                layers.add(layer.name, name, blockOf(annotation->second), annotation->second);
                bool& isHidden = areHidden.insert({annotation->second, true}).first->second;
                isHidden = isHidden && item.isHidden;
                continue;
            }
            const TopoDS_Shape shape = shapeOf(item.id, model, links);
            for (const ShapeLinks::Link& link :
                 shape.IsNull() ? std::vector<ShapeLinks::Link>() : links.everywhere(shape))
            {
                layers.add(layer.name, name, link);
            }
        }
    }
    for (const auto& [annotation, isHidden] : areHidden)
    {
        if (isHidden && !showHidden)
        {
            const auto information = std::make_shared<vrx::ExcTopologicalEntityInformation>();
            information->setEntity(entities::ofScene(annotation));
            information->setHidden(true);
            data.entities(blockOf(annotation)).addData(information);
        }
    }
}

struct Layered
{
    std::uint64_t block;
    mp::wstring layer;
    TopoDS_Shape shape;
};

// The levels of an IGES file.
std::vector<Layered> layeredShapes(const CadModel& model, const ProductStructureBuilder& blocks)
{
    const Handle(XCAFDoc_LayerTool) tool = XCAFDoc_DocumentTool::LayerTool(model.document->Main());
    std::vector<Layered> all;
    for (std::uint64_t block = 1; block <= blocks.blockCount(); ++block)
    {
        TDF_LabelSequence labels;
        if (!blocks.shapeOf(block).IsNull())
        {
            XCAFDoc_ShapeTool::GetSubShapes(blocks.labelOf(block), labels);
            labels.Prepend(blocks.labelOf(block));
        }
        for (const TDF_Label& label : labels)
        {
            const Handle(TColStd_HSequenceOfExtendedString) found = tool->GetLayers(label);
            for (int layer = 1; !found.IsNull() && layer <= found->Length(); ++layer)
            {
                all.push_back({block, occt_text::wide(found->Value(layer)), XCAFDoc_ShapeTool::GetShape(label)});
            }
        }
    }
    return all;
}

void addIgesLayers(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& blocks,
                   ShapeLinks& links)
{
    const std::vector<Layered> all = layeredShapes(model, blocks);
    std::vector<mp::wstring> names;
    std::transform(all.begin(), all.end(), std::back_inserter(names), [](const Layered& one) { return one.layer; });
    Layers layers(data, names);
    for (const Layered& one : all)
    {
        for (const ShapeLinks::Link& link : links.everywhere(one.shape))
        {
            if (link.block == one.block)
            {
                layers.add(one.layer, one.layer, link);
            }
        }
    }
}

} // namespace

std::vector<ShapeLinks::Link> hiddenOnLayers(const CadModel& model, ShapeLinks& links)
{
    std::vector<ShapeLinks::Link> hidden;
    for (const StepLayer& layer : model.records ? stepLayers(*model.records) : std::vector<StepLayer>())
    {
        for (const StepLayer::Item& item : layer.items)
        {
            const TopoDS_Shape shape = item.isHidden ? shapeOf(item.id, model, links) : TopoDS_Shape();
            if (!shape.IsNull())
            {
                const std::vector<ShapeLinks::Link> more = links.everywhere(shape);
                hidden.insert(hidden.end(), more.begin(), more.end());
            }
        }
    }
    return hidden;
}

void addLayers(MechanicalData& data, const CadModel& model, const ProductStructureBuilder& blocks, ShapeLinks& links,
               const DrawnPmi* drawn, const std::map<int, mp::wstring>& drawnIds, bool showHidden)
{
    if (model.records)
    {
        addStepLayers(data, model, links,
                      drawn != nullptr ? annotationItems(*drawn, drawnIds) : std::map<int, mp::wstring>(), showHidden);
    }
    else
    {
        addIgesLayers(data, model, blocks, links);
    }
}
