#include "mechanical/stated_figures.h"

#include "mechanical/assembly_figures.h"
#include "mp/narrow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace
{

using EWhat = StatedFigure::EWhat;

struct FigureName
{
    const mp::wchar* name;
    EWhat what;
};

// Areas and centers of what is no solid have other names.
const FigureName kNames[] = {
    {WIDE("volume measure"), EWhat::Volume},
    {WIDE("surface area measure"), EWhat::Area},
    {WIDE("wetted area measure"), EWhat::Area},
    {WIDE("centre point"), EWhat::Centroid},
};

const FigureName* find(const mp::wstring& name)
{
    const FigureName* const end = std::end(kNames);
    const FigureName* const found =
        std::find_if(kNames, end, [&name](const FigureName& one) { return one.name == name; });
    return found != end ? found : nullptr;
}

// The numbers of a text with nothing else in it; none when there is.
std::vector<double> numbersIn(const mp::wstring& text)
{
    std::istringstream stream(mp::toNarrow(text));
    stream.imbue(std::locale::classic());
    std::vector<double> numbers;
    double number = 0;
    while (stream >> number && std::isfinite(number))
    {
        numbers.push_back(number);
    }
    return stream.eof() ? numbers : std::vector<double>();
}

double distance(const std::array<double, 3>& first, const double* second)
{
    return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

void compare(StatedFigure& figure, const BodyFigures& measured)
{
    if (figure.what == EWhat::Centroid)
    {
        figure.found.assign(measured.centroid.begin(), measured.centroid.end());
        figure.deviation = distance(measured.centroid, figure.stated.data());
        figure.relative = figure.deviation / std::sqrt(measured.area);
    }
    else
    {
        figure.found = {figure.what == EWhat::Volume ? measured.volume : measured.area};
        const double size = std::max(std::abs(figure.found[0]), std::abs(figure.stated[0]));
        figure.deviation = size > 0 ? std::abs(figure.found[0] - figure.stated[0]) / size : 0;
        figure.relative = figure.deviation;
    }
    if (!std::isfinite(figure.relative))
    {
        figure.relative = std::numeric_limits<double>::infinity();
    }
}

void append(std::vector<StatedFigure>& figures, const vrx::ExcMiscData& properties, std::optional<std::size_t> body,
            const BodyFigures& measured)
{
    for (const vrx::ExcMiscProperty& property : properties.properties())
    {
        const FigureName* const name = find(property.name());
        if (name == nullptr)
        {
            continue;
        }
        StatedFigure figure;
        figure.what = name->what;
        figure.body = body;
        figure.stated = numbersIn(property.value());
        if (figure.stated.size() == (name->what == EWhat::Centroid ? 3 : 1))
        {
            compare(figure, measured);
            figures.push_back(figure);
        }
    }
}

// The position in "b0".
std::optional<std::size_t> bodyNamed(const mp::wstring& name, std::size_t count)
{
    const std::string text = mp::toNarrow(name);
    const bool isPosition = text.size() > 1 && text.size() < 10 && text[0] == 'b' &&
                            text.find_first_not_of("0123456789", 1) == std::string::npos;
    const std::size_t position = isPosition ? std::stoul(text.substr(1)) : count;
    return position < count ? std::optional<std::size_t>(position) : std::nullopt;
}

bool states(const vrx::ExcMiscData& properties)
{
    return std::any_of(properties.properties().begin(), properties.properties().end(),
                       [](const vrx::ExcMiscProperty& property) { return find(property.name()) != nullptr; });
}

} // namespace

std::vector<StatedFigure> statedFigures(const vrx::ExcMiscData& properties, const vrx::ExcMechanicalMiscData* data,
                                        const std::vector<ReceivedBodies::Body>& bodies)
{
    std::vector<StatedFigure> figures;
    if (bodies.empty())
    {
        return figures;
    }
    append(figures, properties, std::nullopt, sumOf(bodies));
    if (data != nullptr)
    {
        for (const std::shared_ptr<vrx::ExcMiscNoteParameters>& parameters : data->noteParameters())
        {
            if (const auto body = bodyNamed(parameters->name(), bodies.size()))
            {
                append(figures, parameters->properties(), body, bodies[*body].figures);
            }
        }
    }
    return figures;
}

std::vector<StatedFigure> statedFigures(const vrx::ExcMiscData& properties, const BodyFigures& assembly)
{
    std::vector<StatedFigure> figures;
    append(figures, properties, std::nullopt, assembly);
    return figures;
}

bool statesFigures(const vrx::ExcMiscData& properties, const vrx::ExcMechanicalMiscData* data)
{
    return states(properties) ||
           (data != nullptr && std::any_of(data->noteParameters().begin(), data->noteParameters().end(),
                                           [](const auto& parameters) { return states(parameters->properties()); }));
}
