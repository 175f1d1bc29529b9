#include "structure/instance_styles.h"

#include "structure/block_content.h"
#include "structure/component_labels.h"

#include <TDF_AttributeSequence.hxx>
#include <TDF_LabelSequence.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_GraphNode.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <utility>

namespace
{

const std::size_t kLongest = 100; // path: a damaged one may have no end

} // namespace

InstanceStyles::InstanceStyles(const Handle(TDocStd_Document) & document)
{
    TDF_LabelSequence products;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetShapes(products);
    for (const TDF_Label& product : products)
    {
        for (const TDF_Label& component : component_labels::of(product))
        {
            add(component);
        }
    }
}

// The nodes below a component hang together from the first component of a path to its last. The first has the style.
void InstanceStyles::add(const TDF_Label& component)
{
    TDF_AttributeSequence nodes;
    XCAFDoc_ShapeTool::GetAllComponentSHUO(component, nodes);
    for (const Handle(TDF_Attribute) & attribute : nodes)
    {
        Handle(XCAFDoc_GraphNode) node = Handle(XCAFDoc_GraphNode)::DownCast(attribute);
        if (node.IsNull() || node->NbFathers() > 0)
        {
            continue;
        }
        Style style;
        style.color = BlockContent::colorOf(node->Label());
        style.hidden = !XCAFDoc_DocumentTool::ColorTool(component)->IsVisible(node->Label());
        for (; !node.IsNull() && style.path.size() < kLongest;
             node = node->NbChildren() > 0 ? node->GetChild(1) : Handle(XCAFDoc_GraphNode)())
        {
            style.path.push_back(node->Label().Father());
        }
        if (node.IsNull() && style.path.size() > 1 && (style.color.hasRGB() || style.hidden))
        {
            if (!m_byFirst.IsBound(component))
            {
                m_byFirst.Bind(component, {});
            }
            m_byFirst.ChangeFind(component).push_back(m_styles.size());
            m_styles.push_back(std::move(style));
        }
    }
}

InstanceStyles::Instance InstanceStyles::of(const TDF_Label& component, const Entered& above) const
{
    Entered candidates = above;
    if (const std::vector<std::size_t>* const first = m_byFirst.Seek(component))
    {
        for (const std::size_t style : *first)
        {
            candidates.emplace_back(style, 0);
        }
    }
    Instance instance;
    for (const auto& [number, done] : candidates)
    {
        const Style& style = m_styles[number];
        if (style.path[done] != component)
        {
            continue;
        }
        if (done + 1 < style.path.size())
        {
            instance.below.emplace_back(number, done + 1);
            continue;
        }
        instance.color = instance.color.hasRGB() ? instance.color : style.color;
        instance.hidden = instance.hidden || style.hidden;
    }
    return instance;
}
