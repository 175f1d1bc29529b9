#pragma once

#include "vrx_api/json/json_object.h"

#include <array>
#include <cstdint>

namespace vrx
{

/// A colour of three 16-bit channels and an alpha, usually 0 to 255; the library does not scale or clamp them. The two
/// flags say which parts exist: a colour with neither is no colour and travels as JSON null.
class VRX_API ExcColor : public IJsonObject
{
public:
    /// The places of the channels.
    enum EChannel
    {
        /// Red.
        ChannelRed = 0,
        /// Green.
        ChannelGreen = 1,
        /// Blue.
        ChannelBlue = 2,
        /// Alpha.
        ChannelAlpha = 3,
    };

    ExcColor() = default;
    /// A colour with the three channels, and without or with an alpha.
    ExcColor(std::uint16_t red, std::uint16_t green, std::uint16_t blue);
    ExcColor(std::uint16_t red, std::uint16_t green, std::uint16_t blue, std::uint16_t alpha);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether there are the three channels, which then cross under the key `rgb`.
    bool hasRGB() const { return m_hasRGB; }
    void setHasRGB(bool present) { m_hasRGB = present; }

    /// Whether there is an alpha, which then crosses under the key `alpha`.
    bool hasAlpha() const { return m_hasAlpha; }
    void setHasAlpha(bool present) { m_hasAlpha = present; }

    /// The range of the channel is not tested.
    std::uint16_t& channel(EChannel channel) { return m_channels[channel]; }
    std::uint16_t channel(EChannel channel) const { return m_channels[channel]; }

    /// As `channel`.
    std::uint16_t& operator[](EChannel channel) { return m_channels[channel]; }
    std::uint16_t operator[](EChannel channel) const { return m_channels[channel]; }

private:
    friend struct Described<ExcColor>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    bool m_hasRGB = false;
    bool m_hasAlpha = false;
    std::array<std::uint16_t, 4> m_channels{0, 0, 0, 255};
};

} // namespace vrx
