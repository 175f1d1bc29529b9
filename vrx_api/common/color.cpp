#include "vrx_api/common/color.h"

#include "kolt/log.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"

#include <utility>

namespace vrx
{

namespace
{

constexpr Key kRGB = WIDE("rgb");
constexpr Key kAlpha = WIDE("alpha");

// A channel above 16 bits is cut to them.
std::uint16_t toChannel(const JsonValue& value)
{
    return static_cast<std::uint16_t>(value.GetUint() & 0xFFFFU);
}

} // namespace

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

// False when a channel is missing or is no unsigned integer.
bool ExcColor::readRGB(const JsonValue& value)
{
    for (rapidjson::SizeType i = ChannelRed; i <= ChannelBlue; ++i)
    {
        if (i >= value.Size() || !value[i].IsUint())
        {
            return false;
        }
        m_channels[i] = toChannel(value[i]);
    }
    return true;
}

// An array of channels that ends early ends the whole read: the colour has an RGB part by then, and "alpha" is not
// looked at, so that the alpha part stays as it was.
void ExcColor::readObject(const JsonValue& value)
{
    kolt::trace();
    if (!value.IsObject())
    {
        m_hasRGB = false;
        m_hasAlpha = false;
        return;
    }
    const JsonValue* const rgb = find(value, kRGB);
    m_hasRGB = rgb != nullptr && rgb->IsArray();
    if (m_hasRGB && !readRGB(*rgb))
    {
        return;
    }
    const JsonValue* const alpha = find(value, kAlpha);
    m_hasAlpha = alpha != nullptr && alpha->IsUint();
    if (m_hasAlpha)
    {
        m_channels[ChannelAlpha] = toChannel(*alpha);
    }
}

void ExcColor::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    kolt::trace();
    if (!m_hasRGB && !m_hasAlpha)
    {
        value.SetNull();
        return;
    }
    setObject(value, (m_hasRGB ? 1U : 0U) + (m_hasAlpha ? 1U : 0U), allocator);
    if (m_hasRGB)
    {
        JsonValue rgb(rapidjson::kArrayType);
        rgb.Reserve(ChannelBlue + 1, allocator);
        for (std::size_t i = ChannelRed; i <= ChannelBlue; ++i)
        {
            rgb.PushBack(unsigned{m_channels[i]}, allocator);
        }
        addMember(value, kRGB, std::move(rgb), allocator);
    }
    if (m_hasAlpha)
    {
        addMember(value, kAlpha, JsonValue(unsigned{m_channels[ChannelAlpha]}), allocator);
    }
}

} // namespace vrx
