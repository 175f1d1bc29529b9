#include "pmi/pmi_table.h"

#include "pmi/pmi_notation.h"
#include "printable.h"
#include "wire_name.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <ostream>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace
{

using View = vrx::ExcPMIAnnotationView;
using EType = vrx::ExcSubentId::EType;

// An annotation's text, what it is about, and where it is shown.
using Row = std::array<std::string, 3>;

std::size_t width(const std::string& text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

void printSection(std::ostream& stream, const char* title, const std::vector<Row>& rows)
{
    const std::size_t kWidest = 60; // what is wider moves its own line only
    if (rows.empty())
    {
        return;
    }
    std::array<std::size_t, 3> widths{};
    for (const Row& row : rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            widths[i] = std::max(widths[i], std::min(width(row[i]), kWidest));
        }
    }
    stream << "    " << title << '\n';
    for (const Row& row : rows)
    {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            const std::size_t used = width(row[i]);
            line += "  " + row[i] + std::string(used < widths[i] ? widths[i] - used : 0, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        stream << "    " << line << '\n';
    }
}

std::string joined(const std::vector<mp::wstring>& texts, const char* separator)
{
    std::string line;
    for (const mp::wstring& text : texts)
    {
        line += (line.empty() ? "" : separator) + printable(text);
    }
    return line;
}

std::string kindOf(EType type, bool several)
{
    switch (type)
    {
    case EType::Face:
        return several ? "faces" : "face";
    case EType::Edge:
        return several ? "edges" : "edge";
    default:
        return several ? "vertices" : "vertex";
    }
}

class PmiTable
{
public:
    PmiTable(const ReceivedPmi& pmi, const ReceivedBodies& bodies, const vrx::ExcProductStructure& structure)
        : m_pmi(pmi)
        , m_bodies(bodies)
        , m_structure(structure)
        , m_units(lengthUnits())
    {
    }

    void print(std::ostream& stream) const
    {
        stream << (m_pmi.sets().empty() ? "PMI: none" : "PMI");
        if (m_units.size() == 1)
        {
            stream << ", lengths in " << printable(*m_units.begin());
        }
        stream << '\n';
        for (const std::shared_ptr<vrx::ExcPMIAnnotationSet>& set : m_pmi.sets())
        {
            stream << "  " << heading(set->blockId()) << '\n';
            printSection(stream, "dimensions", rows(*set, &View::dimensions));
            printSection(stream, "tolerances", rows(*set, &View::gdts));
            printSection(stream, "datums", rows(*set, &View::datums));
            printSection(stream, "datum targets", rows(*set, &View::datumTargets));
            printSection(stream, "notes", rows(*set, &View::notes));
            printSection(stream, "saved views", captures(*set));
        }
    }

private:
    std::set<mp::wstring> lengthUnits() const
    {
        std::set<mp::wstring> units;
        for (const std::shared_ptr<vrx::ExcPMIAnnotationSet>& set : m_pmi.sets())
        {
            for (const std::shared_ptr<View>& view : set->views())
            {
                for (const std::shared_ptr<vrx::ExcPMIDimension>& dimension : view->dimensions())
                {
                    units.insert(unit(*dimension));
                }
                for (const std::shared_ptr<vrx::ExcPMIGDT>& gdt : view->gdts())
                {
                    units.insert(gdt->name());
                }
            }
        }
        units.erase(mp::wstring());
        return units;
    }

    static mp::wstring unit(const vrx::ExcPMIDimension& dimension)
    {
        const bool isLength =
            !pmi_notation::isAngle(dimension) && dimension.unit() != vrx::ExcPMIDimension::EDimUnit::None;
        return isLength ? wireName(dimension, WIDE("unit")) : mp::wstring();
    }

    std::string heading(std::uint64_t id) const
    {
        if (id == 0)
        {
            return "the product";
        }
        const auto block = m_structure.getBlockById(id);
        return (block ? printable(block->name()) : "a block that is not there") + ": block " + std::to_string(id);
    }

    template <class Annotation>
    std::vector<Row> rows(const vrx::ExcPMIAnnotationSet& set,
                          const std::vector<std::shared_ptr<Annotation>>& (View::*list)() const) const
    {
        std::vector<Row> rows;
        for (const std::shared_ptr<View>& view : set.views())
        {
            for (const std::shared_ptr<Annotation>& one : ((*view).*list)())
            {
                rows.push_back({text(*one), about(*one, set.blockId()), joined(m_pmi.shownIn(one->id()), ", ")});
            }
        }
        return rows;
    }

    std::string text(const vrx::ExcPMIDimension& dimension) const
    {
        return printable(pmi_notation::text(dimension)) + unitText(unit(dimension));
    }
    std::string text(const vrx::ExcPMIGDT& gdt) const
    {
        return joined(pmi_notation::lines(gdt, m_pmi), " / ") + unitText(gdt.name());
    }
    std::string text(const vrx::ExcPMIDatum& datum) const { return printable(pmi_notation::text(datum, m_pmi)); }
    static std::string text(const vrx::ExcPMIDatumTarget& target) { return printable(pmi_notation::text(target)); }
    static std::string text(const vrx::ExcPMINote& note) { return printable(pmi_notation::text(note)); }

    // The unit stands in the heading when there is only one.
    std::string unitText(const mp::wstring& unit) const
    {
        return m_units.size() < 2 || unit.empty() ? std::string() : ' ' + printable(unit);
    }

    // Such as "faces 12, 14; edge 7".
    std::string about(const vrx::ExcPMIAnnotation& annotation, std::uint64_t block) const
    {
        std::string line;
        const auto append = [&line](const std::string& text) { line += (line.empty() ? "" : "; ") + text; };
        std::vector<BodyLink> links = m_bodies.links(annotation.linkedElements());
        for (auto first = links.begin(); first != links.end();)
        {
            const auto kind = [](const BodyLink& link) {
                return std::make_tuple(link.resolved, link.type, link.block, link.body);
            };
            const auto end =
                std::stable_partition(first, links.end(), [&kind, wanted = kind(*first)](const BodyLink& link) {
                    return kind(link) == wanted;
                });
            append(described(first, end, block));
            first = end;
        }
        return line;
    }

    using Links = std::vector<BodyLink>::const_iterator;

    // Links to parts of one kind and one body.
    std::string described(Links first, Links end, std::uint64_t block) const
    {
        std::vector<mp::wstring> names;
        if (!first->resolved)
        {
            std::transform(first, end, std::back_inserter(names),
                           [](const BodyLink& link) { return link.mechanicalId; });
            return joined(names, ", ");
        }
        std::string text = first->block != block ? "block " + std::to_string(first->block) + ' ' : std::string();
        if (first->type == EType::Body)
        {
            return text + "body " + std::to_string(first->body + 1);
        }
        if (m_bodies.of(first->block).size() > 1)
        {
            text += "body " + std::to_string(first->body + 1) + ' ';
        }
        std::transform(first, end, std::back_inserter(names),
                       [](const BodyLink& link) { return mp::toWide(std::to_string(link.index)); });
        return text + kindOf(first->type, names.size() > 1) + ' ' + joined(names, ", ");
    }

    static std::vector<Row> captures(const vrx::ExcPMIAnnotationSet& set)
    {
        std::vector<Row> rows;
        for (const std::shared_ptr<vrx::ExcPMICapture>& capture : set.captures())
        {
            const std::size_t count = capture->annotationIds().size();
            rows.push_back({printable(capture->name()),
                            std::to_string(count) + (count == 1 ? " annotation" : " annotations"),
                            capture->clippingPlane() ? "with a section" : ""});
        }
        return rows;
    }

    const ReceivedPmi& m_pmi;
    const ReceivedBodies& m_bodies;
    const vrx::ExcProductStructure& m_structure;
    const std::set<mp::wstring> m_units; // of all lengths
};

} // namespace

void printPmi(std::ostream& stream, const ReceivedPmi& pmi, const ReceivedBodies& bodies,
              const vrx::ExcProductStructure& structure)
{
    PmiTable(pmi, bodies, structure).print(stream);
}
