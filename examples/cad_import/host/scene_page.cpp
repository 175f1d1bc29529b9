#include "scene_page.h"

#include "mechanical/mechanical_json.h"
#include "mp/narrow.h"
#include "page_json.h"
#include "placement.h"
#include "printable.h"
#include "scene_json.h"
#include "viewer_page.h"

#include <memory>
#include <stdexcept>
#include <vector>

namespace
{

using References = std::vector<std::shared_ptr<vrx::ExcBlockReference>>;

// An id as text: a number of 64 bits is not safe in the page.
std::string idText(std::uint64_t id)
{
    return std::to_string(id);
}

void reference(PageJson& json, const vrx::ExcBlockReference& reference)
{
    json.StartObject();
    json.field("blockId", idText(reference.blockId()));
    json.field("name", reference.name());
    json.field("persistentId", reference.persistentId());
    json.field("guid", reference.guid());
    json.color(reference.color());
    json.Key("hidden");
    json.Bool(reference.isHidden() || reference.isSuppressed());
    json.numbers("matrix", Placement(reference.transformation()).columns());
    json.EndObject();
}

void references(PageJson& json, const References& all)
{
    json.Key("references");
    json.StartArray();
    for (const std::shared_ptr<vrx::ExcBlockReference>& one : all)
    {
        reference(json, *one);
    }
    json.EndArray();
}

void properties(PageJson& json, const vrx::ExcMiscData& data)
{
    json.Key("properties");
    json.StartArray();
    for (const vrx::ExcMiscProperty& property : data.properties())
    {
        json.StartObject();
        json.field("name", property.name());
        json.field("value", property.value());
        json.EndObject();
    }
    json.EndArray();
}

template <class View>
void addNames(std::set<std::string>& names, const std::vector<std::shared_ptr<View>>& views)
{
    for (const std::shared_ptr<View>& view : views)
    {
        names.insert(mp::toNarrow(view->displayName()));
    }
}

// Within a script element of HTML no "<" may stand.
std::string withoutTags(const std::string& json)
{
    std::string text;
    text.reserve(json.size());
    for (const char character : json)
    {
        character == '<' ? text += "\\u003c" : text += character;
    }
    return text;
}

} // namespace

void ScenePage::add(const vrx::ExcBlockVisualization& block)
{
    if (block.visualizationData())
    {
        m_shapes[block.blockId()] = scene_json::shape(*block.visualizationData());
        m_units.insert(block.visualizationData()->units());
    }
}

void ScenePage::add(const vrx::ExcRootAssemblyVisualization& root)
{
    if (root.visualizationData())
    {
        m_annotations = scene_json::annotations(*root.visualizationData());
        m_views = scene_json::views(*root.visualizationData());
        addNames(m_viewNames, root.visualizationData()->captures());
        addNames(m_viewNames, root.visualizationData()->views());
        m_units.insert(root.visualizationData()->units());
    }
}

std::string ScenePage::html(const vrx::ExcProductStructure& structure, const MechanicalModel& mechanical,
                            const std::string& pmi, const std::string& openView) const
{
    if (!openView.empty())
    {
        checkView(openView);
    }
    for (const vrx::ELengthUnitType units : m_units)
    {
        if (units != structure.units())
        {
            throw std::runtime_error("there is a scene in the unit " + mp::toNarrow(vrx::enumToString(units)) +
                                     ", but the product is in " + mp::toNarrow(vrx::enumToString(structure.units())));
        }
    }
    std::string page;
    for (const std::string_view piece : kViewerPage)
    {
        page += piece;
    }
    static const std::string kPlace = "{{scene}}";
    return page.replace(page.find(kPlace), kPlace.size(), withoutTags(scene(structure, mechanical, pmi, openView)));
}

void ScenePage::checkView(const std::string& name) const
{
    if (m_viewNames.count(name) != 0)
    {
        return;
    }
    std::string message = "there is no saved view " + name + (m_viewNames.empty() ? ", and no other" : "; there are:");
    for (const std::string& other : m_viewNames)
    {
        message += "\n  " + printable(mp::toWide(other));
    }
    throw std::runtime_error(message);
}

std::string ScenePage::scene(const vrx::ExcProductStructure& structure, const MechanicalModel& mechanical,
                             const std::string& pmi, const std::string& openView) const
{
    PageJson json;
    json.StartObject();
    json.field("title", structure.productName());
    json.field("units", vrx::enumToString(structure.units()));
    mechanical.mass ? json.number("mass", *mechanical.mass) : json.null("mass");
    references(json, structure.rootBlockReferences());
    json.Key("blocks");
    json.StartArray();
    for (const std::shared_ptr<vrx::ExcBlock>& block : structure.blocks())
    {
        json.StartObject();
        json.field("id", idText(block->id()));
        json.field("name", block->name());
        json.Key("isPart");
        json.Bool(block->isPart());
        references(json, block->blockReferences());
        properties(json, block->miscData());
        const std::string data = mechanicalJson(mechanical, block->id());
        if (!data.empty())
        {
            json.Key("mechanical");
            json.raw(data);
        }
        const auto shape = m_shapes.find(block->id());
        if (shape != m_shapes.end())
        {
            json.Key("shape");
            json.raw(shape->second);
        }
        json.EndObject();
    }
    json.EndArray();
    json.Key("annotations");
    json.raw(m_annotations);
    json.Key("views");
    json.raw(m_views);
    json.Key("pmi");
    json.raw(pmi);
    if (!openView.empty())
    {
        json.field("openView", openView);
    }
    json.EndObject();
    return json.text();
}
