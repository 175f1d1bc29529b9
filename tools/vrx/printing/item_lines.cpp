#include "printing/item_lines.h"

#include "classes/class_guess.h"
#include "json/array_counts.h"
#include "json/member.h"
#include "measures.h"
#include "printing/escaped.h"
#include "printing/scalar_text.h"

#include <array>
#include <cstdio>

namespace printing
{

namespace
{

std::string secondsOf(std::chrono::microseconds time)
{
    constexpr std::size_t kLongest = 32;
    std::array<char, kLongest> text{};
    std::snprintf(text.data(), text.size(), "%.3f s", std::chrono::duration<double>(time).count());
    return text.data();
}

std::string origin(const input::Item& item)
{
    if (item.sender == input::ESender::Unknown)
    {
        return {};
    }
    return '#' + std::to_string(item.number) + ' ' + secondsOf(item.time) +
           (item.sender == input::ESender::Host ? " from the host: " : " from the translator: ");
}

std::string sizes(const input::Item& item)
{
    const std::string size = tool::counted(item.content.size()) + " bytes";
    return item.isCompressed ? size + " (compressed, plain " + tool::counted(item.plainSize) + ')' : size;
}

std::string warning(const std::string& text, const Palette& palette)
{
    return palette.warning + text + palette.end;
}

std::string bufferOf(const input::Item& item, const Palette& palette)
{
    const std::string unloaded = item.wasUnloaded ? ", " + warning("never loaded", palette) : "";
    switch (item.buffer)
    {
    case input::EBuffer::Present:
        return ", buffer " + sizes(item) + unloaded;
    case input::EBuffer::Missing:
        return ", " + warning("buffer missing", palette);
    case input::EBuffer::Damaged:
        return ", buffer " + sizes(item) + ", " + warning("damaged: " + item.damage, palette) + unloaded;
    case input::EBuffer::None:
        break;
    }
    const std::string damage = item.damage.empty() ? "" : ", " + warning(item.damage, palette);
    return (item.content.empty() ? "" : ", " + sizes(item)) + damage;
}

std::string idOf(const vrx::JsonValue& object)
{
    for (const mp::wstring_view key : {mp::wstring_view(WIDE("block_id")), mp::wstring_view(WIDE("id"))})
    {
        const vrx::JsonValue* const id = json::member(object, key);
        if (id != nullptr)
        {
            return (key == WIDE("id") ? ", id " : ", block ") + briefText(*id);
        }
    }
    return {};
}

} // namespace

std::string className(const input::Item& item)
{
    switch (item.head.kind)
    {
    case vrx::EMessageKind::Command:
        return "command";
    case vrx::EMessageKind::Result:
        return "result";
    case vrx::EMessageKind::Info:
        return "info";
    case vrx::EMessageKind::Envelope:
        return escaped(item.head.objectName);
    case vrx::EMessageKind::Unknown:
        break;
    }
    if (!item.text.empty())
    {
        return "message";
    }
    if (!item.form)
    {
        return "bodies?";
    }
    const mp::wstring guess = classes::guessed(*item.form);
    return guess.empty() ? "object" : escaped(guess) + '?';
}

std::string heading(const input::Item& item, const Palette& palette)
{
    return palette.heading + origin(item) + className(item) + palette.end + bufferOf(item, palette);
}

std::string summary(const input::Item& item, const Palette& palette)
{
    std::string line = heading(item, palette);
    const vrx::JsonValue* const root = item.root();
    if (root == nullptr)
    {
        return line;
    }
    line += idOf(*root);
    for (const json::ArrayCount& array : json::longestArrays(*root))
    {
        line += ", " + escaped(array.name) + ' ' + tool::counted(array.count);
    }
    return line;
}

} // namespace printing
