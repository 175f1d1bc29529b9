#include "looks/color_index.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace color_index
{

namespace
{

using Rgb = std::array<int, 3>;

constexpr int kFirst = 1;
constexpr int kLast = 255;

constexpr Rgb kFixed[] = {
    {255, 0, 0},   {255, 255, 0},   {0, 255, 0},     {0, 255, 255},   {0, 0, 255},
    {255, 0, 255}, {255, 255, 255}, {128, 128, 128}, {192, 192, 192},
};
constexpr int kFirstHue = 10;
constexpr int kFirstGrey = 250;
constexpr int kGreys[] = {51, 91, 132, 173, 214, 255};

// Per hundred of the brightest, for the last digits 0 and 1, 2 and 3, and so on. An odd digit halves the saturation.
constexpr int kValues[] = {100, 65, 50, 30, 15};

// How much of a channel there is in a hue, in quarters. The hues are steps of 15 degrees: red, and the other channels a
// third and two thirds of the circle on.
int quarters(int step, int channel)
{
    const int fromPeak = std::abs((step - channel * 8 + 36) % 24 - 12);
    return std::clamp(8 - fromPeak, 0, 4);
}

Rgb ofHue(int index)
{
    const int step = (index - kFirstHue) / 10;
    const int value = kValues[index % 10 / 2];
    const bool isPale = index % 2 == 1;
    Rgb rgb{};
    for (int channel = 0; channel < 3; ++channel)
    {
        const int eighths = isPale ? 4 + quarters(step, channel) : 2 * quarters(step, channel);
        rgb[static_cast<std::size_t>(channel)] = 255 * value * eighths / 800;
    }
    return rgb;
}

Rgb rgbOf(int index)
{
    if (index < kFirstHue)
    {
        return kFixed[index - kFirst];
    }
    if (index < kFirstGrey)
    {
        return ofHue(index);
    }
    const int grey = kGreys[index - kFirstGrey];
    return {grey, grey, grey};
}

// The square of the distance between two colours.
int distance(const vrx::ExcColor& color, int index)
{
    const Rgb rgb = rgbOf(index);
    int sum = 0;
    for (const auto channel : {vrx::ExcColor::ChannelRed, vrx::ExcColor::ChannelGreen, vrx::ExcColor::ChannelBlue})
    {
        const int difference = std::min<int>(color[channel], 255) - rgb[channel];
        sum += difference * difference;
    }
    return sum;
}

} // namespace

vrx::ExcColor color(int index)
{
    const Rgb rgb = rgbOf(index);
    return {static_cast<std::uint16_t>(rgb[0]), static_cast<std::uint16_t>(rgb[1]), static_cast<std::uint16_t>(rgb[2])};
}

int matching(const vrx::ExcColor& color)
{
    const int index = color.hasRGB() ? nearest(color) : 0;
    return index != 0 && distance(color, index) == 0 ? index : 0;
}

int nearest(const vrx::ExcColor& color)
{
    int best = kFirst;
    for (int index = kFirst; index <= kLast; ++index)
    {
        best = distance(color, index) < distance(color, best) ? index : best;
    }
    return best;
}

} // namespace color_index
