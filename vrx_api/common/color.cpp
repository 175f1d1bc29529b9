#include "vrx_api/common/color.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

namespace
{

constexpr Key kRGB = WIDE("rgb");
constexpr Key kAlpha = WIDE("alpha");

using Channels = std::array<std::uint16_t, 4>;

// A colour with neither part is JSON null.
template <class Flag, class Numbers>
struct Parts
{
    Flag& hasRGB;
    Flag& hasAlpha;
    Numbers& channels;
};
template <class Flag, class Numbers>
Parts(Flag&, Flag&, Numbers&) -> Parts<Flag, Numbers>;

// A channel above 16 bits is cut to them. False for what is no unsigned integer.
template <class Value>
bool decodeChannel(const Value& value, std::uint16_t& channel)
{
    std::uint32_t number = 0;
    const bool taken = decode(value, number);
    channel = taken ? static_cast<std::uint16_t>(number & 0xFFFFU) : channel;
    return taken;
}

// False when a channel is missing or is no unsigned integer.
template <class Value>
bool decodeRGB(const Value& value, Channels& channels)
{
    std::size_t channel = ExcColor::ChannelRed;
    for (const Value element : value.elements())
    {
        if (channel > ExcColor::ChannelBlue || !decodeChannel(element, channels[channel]))
        {
            break;
        }
        ++channel;
    }
    return channel > ExcColor::ChannelBlue;
}

// An array of channels that ends early ends the whole read: the colour has an RGB part by then, and "alpha" is not
// looked at, so that the alpha part stays as it was.
template <class Value>
bool decode(const Value& value, const Parts<bool, Channels>& parts)
{
    const Value rgb = value.isObject() ? findMember(value, kRGB) : Value(nullptr);
    parts.hasRGB = rgb.isThere() && rgb.isArray();
    if (parts.hasRGB && !decodeRGB(rgb, parts.channels))
    {
        return true;
    }
    const Value alpha = value.isObject() ? findMember(value, kAlpha) : Value(nullptr);
    parts.hasAlpha = alpha.isThere() && decodeChannel(alpha, parts.channels[ExcColor::ChannelAlpha]);
    return true;
}

template <class Out>
void encode(Out& out, const Parts<const bool, const Channels>& parts)
{
    if (!parts.hasRGB && !parts.hasAlpha)
    {
        out.null();
        return;
    }
    const auto object = out.beginObject();
    if (parts.hasRGB)
    {
        out.key(kRGB);
        const auto rgb = out.beginArray();
        for (std::size_t channel = ExcColor::ChannelRed; channel <= ExcColor::ChannelBlue; ++channel)
        {
            out.scalar(std::uint32_t{parts.channels[channel]});
        }
        out.endArray(rgb);
    }
    if (parts.hasAlpha)
    {
        out.key(kAlpha);
        out.scalar(std::uint32_t{parts.channels[ExcColor::ChannelAlpha]});
    }
    out.endObject(object);
}

void outline(Shape& shape, const Parts<const bool, const Channels>&)
{
    FieldLister fields;
    fields.filled(kRGB, std::array<std::uint32_t, 3>());
    fields.filled(kAlpha, std::uint32_t());
    shape = fields.take();
    shape.mayBeNull = true;
}

} // namespace

template <class Self, class Fields>
void ExcColor::describe(Self& self, Fields& fields)
{
    fields.whole(Parts{self.m_hasRGB, self.m_hasAlpha, self.m_channels});
}
template struct Described<ExcColor>;

void ExcColor::readObject(const JsonValue& value)
{
    readWhole(*this, value);
}

void ExcColor::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeWhole(*this, value, allocator);
}

ExcColor::ExcColor(std::uint16_t red, std::uint16_t green, std::uint16_t blue)
    : m_hasRGB(true)
    , m_channels{red, green, blue, 255}
{
}

ExcColor::ExcColor(std::uint16_t red, std::uint16_t green, std::uint16_t blue, std::uint16_t alpha)
    : m_hasRGB(true)
    , m_hasAlpha(true)
    , m_channels{red, green, blue, alpha}
{
}

} // namespace vrx
