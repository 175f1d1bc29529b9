#include "mechanical/mechanical_json.h"
#include "product_tree.h"
#include "tree_output.h"
#include "utf8.h"
#include "vrx_api/json/json_value.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <cmath>
#include <cstdint>
#include <ostream>
#include <string>

namespace
{

class TreeWriter
{
public:
    TreeWriter(const vrx::ExcProductStructure& structure, const TreeExtras& extras)
        : m_structure(structure)
        , m_extras(extras)
        , m_writer(m_buffer)
    {
        m_writer.SetIndent(' ', 2);
        m_writer.SetFormatOptions(rapidjson::kFormatSingleLineArray);
    }

    std::string text()
    {
        m_writer.StartObject();
        field("product", m_structure.productName());
        field("units", vrx::enumToString(m_structure.units()));
        m_writer.Key("mass");
        m_extras.mechanical.mass ? number(*m_extras.mechanical.mass) : static_cast<void>(m_writer.Null());
        properties(m_structure.miscData());
        blocks();
        tree();
        m_writer.Key("pmi");
        raw(m_extras.pmi);
        componentNames();
        componentMaterials();
        m_writer.EndObject();
        return m_buffer.GetString();
    }

private:
    void string(const mp::wstring& text)
    {
        const std::string narrow = utf8(text);
        m_writer.String(narrow.c_str(), static_cast<rapidjson::SizeType>(narrow.size()));
    }

    void field(const char* key, const mp::wstring& text)
    {
        m_writer.Key(key);
        string(text);
    }

    void properties(const vrx::ExcMiscData& data)
    {
        static const char* const kTypes[] = {"unknown", "string", "integer", "double", "boolean", "date_time"};
        m_writer.Key("properties");
        m_writer.StartArray();
        for (const vrx::ExcMiscProperty& property : data.properties())
        {
            m_writer.StartObject();
            field("name", property.name());
            m_writer.Key("type");
            m_writer.String(kTypes[static_cast<std::size_t>(property.type())]);
            field("value", property.value());
            m_writer.EndObject();
        }
        m_writer.EndArray();
    }

    void blocks()
    {
        m_writer.Key("blocks");
        m_writer.StartArray();
        for (const auto& block : m_structure.blocks())
        {
            m_writer.StartObject();
            m_writer.Key("id");
            m_writer.Uint64(block->id());
            field("name", block->name());
            field("storage_name", block->storageName());
            m_writer.Key("is_part");
            m_writer.Bool(block->isPart());
            properties(block->miscData());
            mechanical(*block);
            m_writer.EndObject();
        }
        m_writer.EndArray();
    }

    void mechanical(const vrx::ExcBlock& block)
    {
        for (const auto& [key, value] : mechanicalMembers(m_extras.mechanical, block.id()))
        {
            m_writer.Key(key.c_str());
            raw(value);
        }
    }

    void raw(const std::string& json) { m_writer.RawValue(json.c_str(), json.size(), rapidjson::kObjectType); }

    void tree()
    {
        m_writer.Key("tree");
        m_writer.StartArray();
        std::size_t open = 0; // nodes whose children are being written
        for (const ProductTreeNode& node : productTree(m_structure, ESiblings::Separate))
        {
            closeTo(open, node.depth);
            instance(node);
            ++open;
        }
        closeTo(open, 0);
        m_writer.EndArray();
    }

    void closeTo(std::size_t& open, std::size_t depth)
    {
        for (; open > depth; --open)
        {
            m_writer.EndArray();
            m_writer.EndObject();
        }
    }

    void instance(const ProductTreeNode& node)
    {
        const vrx::ExcBlockReference& reference = *node.references.front();
        m_writer.StartObject();
        field("name", reference.name());
        field("block", node.block ? node.block->name() : mp::wstring());
        m_writer.Key("block_id");
        m_writer.Uint64(reference.blockId());
        if (node.state == ProductTreeNode::EState::Recursion)
        {
            m_writer.Key("holds_itself");
            m_writer.Bool(true);
        }
        field("persistent_id", reference.persistentId());
        color(reference.color());
        m_writer.Key("hidden");
        m_writer.Bool(reference.isHidden());
        m_writer.Key("suppressed");
        m_writer.Bool(reference.isSuppressed());
        transformation(reference.transformation());
        properties(reference.miscData());
        m_writer.Key("children");
        m_writer.StartArray();
    }

    void componentNames()
    {
        if (!m_extras.components.names)
        {
            return;
        }
        m_writer.Key("component_names");
        m_writer.StartArray();
        for (const auto& [handle, name] : m_extras.components.names->map())
        {
            m_writer.StartObject();
            m_writer.Key("handle");
            m_writer.Uint64(static_cast<std::uint64_t>(handle));
            field("name", name);
            m_writer.EndObject();
        }
        m_writer.EndArray();
    }

    void componentMaterials()
    {
        if (!m_extras.components.materials)
        {
            return;
        }
        m_writer.Key("component_materials");
        m_writer.StartArray();
        for (const auto& [handle, material] : m_extras.components.materials->map())
        {
            m_writer.StartObject();
            m_writer.Key("handle");
            m_writer.Uint64(static_cast<std::uint64_t>(handle));
            m_writer.Key("has_material");
            m_writer.Bool(material.hasMaterial);
            field("name", material.name);
            m_writer.Key("density");
            number(material.density);
            m_writer.EndObject();
        }
        m_writer.EndArray();
    }

    void color(const vrx::ExcColor& color)
    {
        m_writer.Key("color");
        if (!color.hasRGB())
        {
            m_writer.Null();
            return;
        }
        m_writer.StartArray();
        for (const auto channel : {vrx::ExcColor::ChannelRed, vrx::ExcColor::ChannelGreen, vrx::ExcColor::ChannelBlue,
                                   vrx::ExcColor::ChannelAlpha})
        {
            m_writer.Uint(color[channel]);
        }
        m_writer.EndArray();
    }

    void transformation(const vrx::ExcTransformation& transformation)
    {
        m_writer.Key("affine");
        m_writer.StartArray();
        for (std::size_t row = 0; row < 3; ++row)
        {
            vector(transformation.affine()[row]);
        }
        m_writer.EndArray();
        m_writer.Key("translation");
        vector(transformation.translation());
    }

    void vector(const vrx::ExcVector3d& vector)
    {
        m_writer.StartArray();
        for (std::size_t i = 0; i < 3; ++i)
        {
            number(vector[i]);
        }
        m_writer.EndArray();
    }

    // JSON has no numbers that are not finite.
    void number(double value) { std::isfinite(value) ? m_writer.Double(value) : m_writer.Null(); }

    const vrx::ExcProductStructure& m_structure;
    const TreeExtras& m_extras;
    rapidjson::StringBuffer m_buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> m_writer;
};

} // namespace

void printJson(std::ostream& stream, const vrx::ExcProductStructure& structure, const TreeExtras& extras)
{
    stream << TreeWriter(structure, extras).text() << '\n';
}
