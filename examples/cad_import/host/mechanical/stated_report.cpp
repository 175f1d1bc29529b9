#include "mechanical/stated_report.h"

#include "number_text.h"
#include "printable.h"

#include <algorithm>
#include <cmath>
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

struct Agreeing
{
    std::string name; // of the first part
    std::size_t count = 0;
    double worst = 0;
};

} // namespace

void printStated(std::ostream& stream, const MechanicalModel& mechanical, const vrx::ExcProductStructure& structure)
{
    std::map<std::vector<bool>, Agreeing, std::greater<>> agreeing; // by which figures agree
    std::string differing;
    for (const auto& [id, part] : mechanical.parts)
    {
        const auto block = structure.getBlockById(id);
        const std::string name = block ? printable(block->name()) : std::string();
        std::vector<bool> whats(3);
        double worst = 0;
        for (const StatedFigure& figure : part.stated)
        {
            if (figure.agrees())
            {
                whats[static_cast<std::size_t>(figure.what)] = true;
                worst = std::max(worst, figure.relative);
                continue;
            }
            differing += "differs from the file: " + name;
            differing += figure.body ? " body " + std::to_string(*figure.body + 1) : std::string();
            differing += std::string(": ") + nameOf(figure.what) + ' ' + numbers(figure.found) + ", stated " +
                         numbers(figure.stated) + '\n';
        }
        if (std::find(whats.begin(), whats.end(), true) != whats.end())
        {
            Agreeing& group = agreeing[whats];
            group.name = group.count == 0 ? name : group.name;
            group.worst = std::max(group.worst, worst);
            ++group.count;
        }
    }
    for (const auto& [whats, group] : agreeing)
    {
        stream << listed(whats) << " as stated, within " << within(group.worst) << ": "
               << (group.count == 1 ? group.name : std::to_string(group.count) + " parts") << '\n';
    }
    stream << differing;
}
