#include "common/property_names.h"
#include "find_property.h"
#include "mechanical/mass_text.h"
#include "mechanical/stated_report.h"
#include "printable.h"
#include "product_tree.h"
#include "tree_output.h"

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <set>
#include <sstream>
#include <string>

namespace
{

std::string counted(const std::string& count, const char* singular, const char* plural)
{
    return count + ' ' + (count == "1" ? singular : plural);
}

std::string property(const vrx::ExcMiscData& data, const mp::wchar* name)
{
    const vrx::ExcMiscProperty* const found = findProperty(data, name);
    return found != nullptr ? printable(found->value()) : std::string();
}

// Each once, for several bodies may be of one.
std::string materialsText(const MechanicalPart& part)
{
    std::set<std::string> known;
    std::string text;
    for (const PartMaterial& material : part.materials)
    {
        const std::string name = printable(material.name);
        if (known.insert(name).second)
        {
            text += (text.empty() ? "" : ", ") + name;
        }
    }
    return (known.size() == 1 ? "material " : "materials ") + text;
}

// The mass of the product, or of those parts of which it is known.
std::string massSummary(const MechanicalModel& mechanical)
{
    if (mechanical.mass)
    {
        return ", mass " + massText(*mechanical.mass);
    }
    if (mechanical.partsWithMass == 0)
    {
        return {};
    }
    return ", mass of " + std::to_string(mechanical.partsWithMass) + " of " +
           counted(std::to_string(mechanical.partsWithBodies), "part", "parts") + ' ' + massText(mechanical.knownMass);
}

std::string partNote(const vrx::ExcBlock& block, const MechanicalModel& mechanical)
{
    std::string note = "part";
    const char* separator = ": ";
    const auto append = [&](const std::string& text) {
        note += separator + text;
        separator = ", ";
    };
    const std::string solids = property(block.miscData(), property_names::kSolids);
    const std::string shells = property(block.miscData(), property_names::kShells);
    const std::string faces = property(block.miscData(), property_names::kFaces);
    if (!solids.empty() && solids != "0")
    {
        append(counted(solids, "solid", "solids"));
    }
    if (!shells.empty() && shells != "0")
    {
        append(counted(shells, "open shell", "open shells"));
    }
    if (!faces.empty())
    {
        append(counted(faces, "face", "faces"));
    }
    const auto part = mechanical.parts.find(block.id());
    if (part == mechanical.parts.end())
    {
        return note;
    }
    if (!part->second.materials.empty())
    {
        append(materialsText(part->second));
    }
    if (part->second.mass)
    {
        append(massText(*part->second.mass));
    }
    return note;
}

std::string note(const ProductTreeNode& node, const MechanicalModel& mechanical)
{
    switch (node.state)
    {
    case ProductTreeNode::EState::MissingBlock:
        return "no block with id " + std::to_string(node.references.front()->blockId());
    case ProductTreeNode::EState::Recursion:
        return "holds itself";
    case ProductTreeNode::EState::Normal:
        break;
    }
    if (node.block->isPart())
    {
        return partNote(*node.block, mechanical);
    }
    return "assembly: " + counted(std::to_string(node.block->blockReferences().size()), "component", "components");
}

std::string colorText(const vrx::ExcBlockReference& reference)
{
    const std::string index = property(reference.miscData(), property_names::kColorIndex);
    if (!index.empty())
    {
        return "color " + index;
    }
    const vrx::ExcColor& color = reference.color();
    std::ostringstream stream;
    stream << '#' << std::hex << std::setfill('0');
    for (const auto channel : {vrx::ExcColor::ChannelRed, vrx::ExcColor::ChannelGreen, vrx::ExcColor::ChannelBlue})
    {
        stream << std::setw(2) << color[channel];
    }
    if (color.hasAlpha())
    {
        stream << std::setw(2) << color[vrx::ExcColor::ChannelAlpha];
    }
    return stream.str();
}

std::string names(const ProductTreeNode& node)
{
    const std::string first = printable(node.references.front()->name());
    const std::string last = printable(node.references.back()->name());
    return node.references.size() == 1 || first == last ? first : first + " .. " + last;
}

std::string line(const ProductTreeNode& node, const MechanicalModel& mechanical)
{
    const vrx::ExcBlockReference& reference = *node.references.front();
    std::string text = names(node);
    if (node.block)
    {
        text += " (" + printable(node.block->name()) + ')';
    }
    if (node.references.size() > 1)
    {
        text += " x" + std::to_string(node.references.size());
    }
    if (reference.color().hasRGB())
    {
        text += ' ' + colorText(reference);
    }
    if (reference.isHidden())
    {
        text += " hidden";
    }
    if (reference.isSuppressed())
    {
        text += " suppressed";
    }
    return text + " [" + note(node, mechanical) + ']';
}

void printProperties(std::ostream& stream, const vrx::ExcMiscData& data, const std::string& indent)
{
    for (const vrx::ExcMiscProperty& property : data.properties())
    {
        stream << indent << "- " << printable(property.name()) << ": " << printable(property.value()) << '\n';
    }
}

void printSummary(std::ostream& stream, const vrx::ExcProductStructure& structure,
                  const std::vector<ProductTreeNode>& tree, const MechanicalModel& mechanical)
{
    const auto parts = std::count_if(structure.blocks().begin(), structure.blocks().end(),
                                     [](const auto& block) { return block->isPart(); });
    // How often the line being looked at stands in the whole product: the counts of the lines above it, multiplied.
    std::vector<std::size_t> times;
    std::size_t instances = 0;
    std::size_t depth = 0;
    for (const ProductTreeNode& node : tree)
    {
        times.resize(node.depth);
        times.push_back(node.references.size() * (times.empty() ? 1 : times.back()));
        depth = std::max(depth, node.depth + 1);
        if (node.block && node.block->isPart())
        {
            instances += times.back();
        }
    }
    const auto text = [](std::size_t count) { return std::to_string(count); };
    stream << counted(text(structure.blocks().size()), "block", "blocks") << " ("
           << counted(std::to_string(parts), "part", "parts") << "), "
           << counted(text(instances), "instance", "instances") << " of parts, "
           << counted(text(depth), "level", "levels") << massSummary(mechanical) << '\n';
}

} // namespace

void printText(std::ostream& stream, const vrx::ExcProductStructure& structure, const TreeExtras& extras)
{
    const std::vector<ProductTreeNode> tree = productTree(structure, ESiblings::Collapsed);
    stream << "product " << printable(structure.productName()) << ", units "
           << printable(vrx::enumToString(structure.units())) << '\n';
    if (extras.properties)
    {
        printProperties(stream, structure.miscData(), "  ");
    }
    std::set<const vrx::ExcBlock*> described;
    for (const ProductTreeNode& node : tree)
    {
        const std::string indent(2 * node.depth, ' ');
        stream << indent << line(node, extras.mechanical) << '\n';
        if (extras.properties && node.block && described.insert(node.block).second)
        {
            printProperties(stream, node.block->miscData(), indent + "    ");
        }
    }
    printSummary(stream, structure, tree, extras.mechanical);
    printStated(stream, extras.mechanical, structure);
    printComponents(stream, extras.components);
}
