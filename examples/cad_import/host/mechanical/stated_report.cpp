#include "mechanical/stated_report.h"

#include "number_text.h"
#include "printable.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace
{

using EWhat = StatedFigure::EWhat;

const char* nameOf(EWhat what)
{
    switch (what)
    {
    case EWhat::Volume:
        return "volume";
    case EWhat::Area:
        return "area";
    case EWhat::Centroid:
        break;
    }
    return "centroid";
}

// Such as "volume, area and centroid", of names in the order of the enumeration.
std::string listed(const std::vector<bool>& whats)
{
    std::vector<std::string> names;
    for (const EWhat what : {EWhat::Volume, EWhat::Area, EWhat::Centroid})
    {
        if (whats[static_cast<std::size_t>(what)])
        {
            names.emplace_back(nameOf(what));
        }
    }
    std::string text = names.front();
    for (std::size_t i = 1; i < names.size(); ++i)
    {
        text += (i + 1 == names.size() ? " and " : ", ") + names[i];
    }
    return text;
}

// The smallest power of ten that holds, from the last digit of what files state.
std::string within(double deviation)
{
    const int kFinest = -9;
    const int power = deviation > 0 ? static_cast<int>(std::ceil(std::log10(deviation))) : kFinest;
    return "1e" + std::to_string(std::max(power, kFinest));
}

std::string numbers(const std::vector<double>& values)
{
    const int kDigits = 9;
    std::string text;
    for (const double value : values)
    {
        text += (text.empty() ? "" : " ") + mp::toNarrow(roundedText(value, kDigits));
    }
    return values.size() == 1 ? text : '(' + text + ')';
}

// The products of which the same figures agree.
struct Agreeing
{
    std::string text() const
    {
        if (parts + assemblies == 1)
        {
            return name;
        }
        const std::string first = counted(parts, "part", "parts");
        const std::string second = counted(assemblies, "assembly", "assemblies");
        return first + (first.empty() || second.empty() ? "" : " and ") + second;
    }

    static std::string counted(std::size_t count, const char* singular, const char* plural)
    {
        return count == 0 ? std::string() : std::to_string(count) + ' ' + (count == 1 ? singular : plural);
    }

    std::string name; // of the first one
    std::size_t parts = 0;
    std::size_t assemblies = 0;
    double worst = 0;
};

class Report
{
public:
    explicit Report(const vrx::ExcProductStructure& structure)
        : m_structure(structure)
    {
    }

    // What is stated of a block that has this many bodies, or none for an assembly.
    void add(std::uint64_t id, const std::vector<StatedFigure>& stated, std::size_t bodies)
    {
        const auto block = m_structure.getBlockById(id);
        const std::string name = block ? printable(block->name()) : std::string();
        std::vector<bool> whats(3);
        double worst = 0;
        for (const StatedFigure& figure : stated)
        {
            if (figure.agrees())
            {
                whats[static_cast<std::size_t>(figure.what)] = true;
                worst = std::max(worst, figure.relative);
                continue;
            }
            m_differing += "differs from the file: " + name;
            m_differing += bodies > 1 && figure.body ? " body " + std::to_string(*figure.body + 1) : std::string();
            m_differing += std::string(": ") + nameOf(figure.what) + ' ' + numbers(figure.found) + ", stated " +
                           numbers(figure.stated) + '\n';
        }
        if (std::find(whats.begin(), whats.end(), true) != whats.end())
        {
            Agreeing& group = m_agreeing[whats];
            group.name = group.name.empty() ? name : group.name;
            group.worst = std::max(group.worst, worst);
            ++(bodies > 0 ? group.parts : group.assemblies);
        }
    }

    void print(std::ostream& stream) const
    {
        for (const auto& [whats, group] : m_agreeing)
        {
            stream << listed(whats) << " as stated, within " << within(group.worst) << ": " << group.text() << '\n';
        }
        stream << m_differing;
    }

private:
    const vrx::ExcProductStructure& m_structure;
    std::map<std::vector<bool>, Agreeing, std::greater<>> m_agreeing; // by which figures agree
    std::string m_differing;
};

} // namespace

void printStated(std::ostream& stream, const MechanicalModel& mechanical, const vrx::ExcProductStructure& structure)
{
    Report report(structure);
    for (const auto& [id, part] : mechanical.parts)
    {
        report.add(id, part.stated, part.bodies);
    }
    for (const auto& [id, stated] : mechanical.assemblies)
    {
        report.add(id, stated, 0);
    }
    report.print(stream);
}
