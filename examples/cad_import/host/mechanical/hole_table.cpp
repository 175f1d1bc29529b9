#include "mechanical/hole_table.h"

#include "mechanical/hole_callout.h"
#include "printable.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace
{

// In the order in which the keys first occurred.
template <class Value>
class Groups
{
public:
    void add(const std::string& key, const Value& value)
    {
        const auto [known, isNew] = m_places.emplace(key, m_groups.size());
        if (isNew)
        {
            m_groups.push_back({key, {}});
        }
        m_groups[known->second].second.push_back(value);
    }

    auto begin() const { return m_groups.begin(); }
    auto end() const { return m_groups.end(); }

private:
    std::vector<std::pair<std::string, std::vector<Value>>> m_groups;
    std::map<std::string, std::size_t> m_places;
};

std::string pointText(const vrx::ExcVector3d& point)
{
    std::string text = "(";
    for (std::size_t i = 0; i < 3; ++i)
    {
        text += (i == 0 ? "" : " ") + printable(hole_callout::number(point[i]));
    }
    return text + ')';
}

std::string times(std::size_t count)
{
    return count == 1 ? std::string() : std::to_string(count) + "X ";
}

class HoleTable
{
public:
    HoleTable(std::ostream& stream, const MechanicalPart& part)
        : m_stream(stream)
        , m_holes(part.features)
        , m_bodies(part.bodies)
    {
    }

    void print() const
    {
        Groups<const PartHole*> equal;
        for (const PartHole& hole : m_holes.holes)
        {
            equal.add(printable(hole_callout::text(hole, m_holes.threads)), &hole);
        }
        for (const auto& [callout, holes] : equal)
        {
            m_stream << "    " << times(holes.size()) << callout << '\n';
            printPlaces(holes);
        }
        Groups<const PartThread*> threads;
        for (const PartThread& thread : m_holes.threads)
        {
            if (!thread.hole)
            {
                threads.add(printable(hole_callout::text(thread)) + (thread.isInternal ? " internal" : " external"),
                            &thread);
            }
        }
        for (const auto& [callout, same] : threads)
        {
            m_stream << "    " << times(same.size()) << callout << '\n';
            printFaces(same);
        }
    }

private:
    // A line for each pattern, direction and body.
    void printPlaces(const std::vector<const PartHole*>& holes) const
    {
        Groups<const PartHole*> places;
        for (const PartHole* const hole : holes)
        {
            const auto position = [](const auto& place) { return place ? std::to_string(*place) + ' ' : "- "; };
            places.add(position(hole->pattern) + position(hole->body) + pointText(hole->direction), hole);
        }
        for (const auto& [key, same] : places)
        {
            const PartHole& first = *same.front();
            m_stream << "      ";
            if (first.pattern)
            {
                m_stream << printable(hole_callout::text(m_holes.patterns[*first.pattern])) << ": ";
            }
            if (m_bodies > 1 && first.body)
            {
                m_stream << bodyText(*first.body);
            }
            std::vector<std::string> points;
            for (const PartHole* const hole : same)
            {
                points.push_back(pointText(hole->center));
            }
            m_stream << joined(points) << " into " << pointText(first.direction) << '\n';
        }
    }

    void printFaces(const std::vector<const PartThread*>& threads) const
    {
        std::vector<std::string> faces;
        for (const PartThread* const thread : threads)
        {
            for (const mp::wstring& face : thread->faces)
            {
                faces.push_back(faceText(printable(face)));
            }
        }
        if (!faces.empty())
        {
            m_stream << "      " << joined(faces) << '\n';
        }
    }

    // Such as "body 1 face 9" for "0/f9".
    std::string faceText(const std::string& id) const
    {
        for (std::size_t body = 0; body < m_bodies; ++body)
        {
            const std::string prefix = std::to_string(body) + "/f";
            if (id.rfind(prefix, 0) == 0)
            {
                return (m_bodies > 1 ? bodyText(body) : "") + "face " + id.substr(prefix.size());
            }
        }
        return id;
    }

    static std::string bodyText(std::size_t position) { return "body " + std::to_string(position + 1) + ' '; }

    static std::string joined(const std::vector<std::string>& texts)
    {
        std::string line;
        for (const std::string& text : texts)
        {
            line += (line.empty() ? "" : ", ") + text;
        }
        return line;
    }

    std::ostream& m_stream;
    const PartHoles& m_holes;
    const std::size_t m_bodies;
};

bool hasFeatures(const MechanicalPart& part)
{
    return !part.features.holes.empty() || !part.features.threads.empty();
}

} // namespace

void printHoles(std::ostream& stream, const MechanicalModel& mechanical, const vrx::ExcProductStructure& structure)
{
    const bool some = std::any_of(mechanical.parts.begin(), mechanical.parts.end(),
                                  [](const auto& part) { return hasFeatures(part.second); });
    if (!some)
    {
        stream << "holes: none\n";
        return;
    }
    stream << "holes, lengths in " << printable(vrx::enumToString(structure.units())) << '\n';
    for (const auto& [id, part] : mechanical.parts)
    {
        const auto block = structure.getBlockById(id);
        if (block && hasFeatures(part))
        {
            stream << "  " << printable(block->name()) << ": block " << id << ", "
                   << printable(hole_callout::number(part.instances))
                   << (part.instances == 1 ? " instance\n" : " instances\n");
            HoleTable(stream, part).print();
        }
    }
}
