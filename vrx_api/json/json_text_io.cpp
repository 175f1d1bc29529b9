#include "vrx_api/json/json_text_io.h"

#include "vrx_api/json/json_children.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/json/rule_keeper.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>

#include <stdexcept>
#include <vector>

namespace vrx
{

namespace
{

// A caller's stream is touched by one bulk write or one bulk read: unit by unit, libstdc++ turns U+FFFF into U+FFFD.
struct WideBuffer
{
    using Ch = wchar;

    void Put(Ch unit) { text.push_back(unit); }
    void Flush() {}

    wstring text;
};

using PlainWriter = rapidjson::Writer<WideBuffer, JsonEncoding, JsonEncoding>;
using PrettyWriter = rapidjson::PrettyWriter<WideBuffer, JsonEncoding, JsonEncoding>;

template <class Writer>
bool writeScalar(Writer& writer, const JsonValue& value)
{
    switch (value.GetType())
    {
    case rapidjson::kNullType:
        return writer.Null();
    case rapidjson::kFalseType:
    case rapidjson::kTrueType:
        return writer.Bool(value.GetBool());
    case rapidjson::kStringType:
        return writer.String(value.GetString(), value.GetStringLength());
    default:
        break;
    }
    if (value.IsDouble())
    {
        return writer.Double(value.GetDouble());
    }
    if (value.IsInt64())
    {
        return writer.Int64(value.GetInt64());
    }
    return writer.Uint64(value.GetUint64());
}

// RapidJSON's own walk recurses, and a deep tree overflows the stack; this one keeps its own.
// False when the tree holds what JSON text can't: a number that is not finite, or a name that is no string.
template <class Writer>
bool writeTree(Writer& writer, const JsonValue& root)
{
    std::vector<JsonChildren> open;
    const JsonValue* value = &root;
    while (true)
    {
        if (value->IsObject() || value->IsArray())
        {
            value->IsObject() ? writer.StartObject() : writer.StartArray();
            open.emplace_back(*value);
        }
        else if (!writeScalar(writer, *value))
        {
            return false;
        }
        while (!open.empty() && open.back().atEnd())
        {
            open.back().isObject() ? writer.EndObject() : writer.EndArray();
            open.pop_back();
        }
        if (open.empty())
        {
            return true;
        }
        const bool atName = open.back().atName();
        value = &open.back().next();
        if (atName && !value->IsString())
        {
            return false;
        }
    }
}

bool writeText(WideBuffer& buffer, const JsonDocument& document, bool pretty)
{
    if (pretty)
    {
        constexpr unsigned kIndent = 2;
        PrettyWriter writer(buffer);
        writer.SetIndent(' ', kIndent).SetFormatOptions(rapidjson::kFormatSingleLineArray);
        return writeTree(writer, document);
    }
    PlainWriter writer(buffer);
    return writeTree(writer, document);
}

// The first unit that a stream's buffer has no room for goes through its overflow, where U+FFFF is lost even in a bulk
// write. So that none has to, as many blanks make room for a text that holds that unit.
void makeRoom(wostream& stream, const wstring& text)
{
    constexpr wchar kLostUnit = 0xFFFF;
    // Only a string buffer keeps the room that was made, and only there seeking back is sure.
    const bool keepsRoom = dynamic_cast<std::basic_stringbuf<wchar>*>(stream.rdbuf()) != nullptr;
    const bool needed = keepsRoom && text.find(kLostUnit) != wstring::npos;
    const wostream::pos_type begin = needed ? stream.tellp() : wostream::pos_type(-1);
    if (begin != wostream::pos_type(-1))
    {
        const wstring blanks(text.size(), ' ');
        stream.write(blanks.data(), static_cast<std::streamsize>(blanks.size()));
        stream.seekp(begin);
    }
}

wstring readAll(wistream& stream)
{
    wstring text;
    const wistream::sentry ready(stream, true);
    if (!ready)
    {
        return text;
    }
    auto& buffer = *stream.rdbuf();
    using Traits = wistream::traits_type;
    while (!Traits::eq_int_type(buffer.sgetc(), Traits::eof()))
    {
        const std::streamsize available = buffer.in_avail();
        const std::size_t size = text.size();
        text.resize(size + static_cast<std::size_t>(available > 0 ? available : 1));
        const std::streamsize taken = buffer.sgetn(&text[size], static_cast<std::streamsize>(text.size() - size));
        text.resize(size + static_cast<std::size_t>(taken));
        if (taken <= 0)
        {
            break;
        }
    }
    stream.setstate(std::ios_base::eofbit);
    return text;
}

// The unit of the escape \uXXXX at the position, or 0 when there is none.
unsigned escapedUnit(const wstring& text, std::size_t at)
{
    constexpr std::size_t kDigits = 4;
    if (text.compare(at, 2, WIDE("\\u")) != 0 || text.size() - at - 2 < kDigits)
    {
        return 0;
    }
    unsigned unit = 0;
    for (std::size_t i = at + 2; i < at + 2 + kDigits; ++i)
    {
        const std::size_t digit = wstring_view(WIDE("0123456789abcdefABCDEF")).find(text[i]);
        if (digit == wstring_view::npos)
        {
            return 0;
        }
        unit = unit << 4 | static_cast<unsigned>(digit < 16 ? digit : digit - 6);
    }
    return unit;
}

// RapidJSON takes the escape of a low surrogate that follows no high one for the unit that it names, but in debug
// builds it asserts that there is none and ends the process. The unit itself is taken in all builds.
void unescapeLoneSurrogates(wstring& text)
{
    constexpr std::size_t kEscape = 6;
    constexpr unsigned kHigh = 0xD800;
    constexpr unsigned kLow = 0xDC00;
    constexpr unsigned kSurrogates = 0xFC00;
    wstring plain;
    std::size_t done = 0;
    for (std::size_t at = text.find('\\'); at != wstring::npos; at = text.find('\\', at))
    {
        const unsigned unit = escapedUnit(text, at);
        if ((unit & kSurrogates) == kLow)
        {
            plain.append(text, done, at - done);
            plain.push_back(static_cast<wchar>(unit));
            done = at + kEscape;
        }
        // The escape behind that of a high surrogate is its other half.
        const bool pair = (unit & kSurrogates) == kHigh && escapedUnit(text, at + kEscape) != 0;
        const std::size_t escaped = unit != 0 ? kEscape : 2;
        at += pair ? 2 * kEscape : escaped;
    }
    if (done != 0)
    {
        plain.append(text, done);
        text.swap(plain);
    }
}

// The recursive parser accepts the same texts, but overflows the stack on deep ones.
constexpr unsigned kFlags = rapidjson::kParseDefaultFlags | rapidjson::kParseIterativeFlag;

// Takes the values of a text as the parser comes to them. Throws what breaks the rules.
class RuleHandler : public rapidjson::BaseReaderHandler<JsonEncoding, RuleHandler>
{
public:
    using Ch = wchar;

    explicit RuleHandler(const ReadRules& rules)
        : m_rules(rules)
    {
    }

    bool Default()
    {
        m_rules.values(1);
        return true;
    }

    bool Key(const Ch* units, rapidjson::SizeType size, bool)
    {
        m_rules.name({units, size});
        return Default();
    }

    bool StartObject()
    {
        m_rules.beginObject();
        return begin();
    }

    bool EndObject(rapidjson::SizeType)
    {
        m_rules.endObject();
        return end();
    }

    bool StartArray() { return begin(); }

    bool EndArray(rapidjson::SizeType) { return end(); }

private:
    bool begin()
    {
        m_rules.depth(++m_depth);
        return Default();
    }

    bool end()
    {
        --m_depth;
        return true;
    }

    RuleKeeper m_rules;
    std::uint64_t m_depth = 0;
};

// The text has no lone surrogates in escapes, and is used up.
void requireRules(wstring text, const ReadRules& rules)
{
    if (rules.isStrict && text.find(wchar{}) != wstring::npos)
    {
        throw std::invalid_argument("The text has a NUL in it");
    }
    RuleHandler handler(rules);
    rapidjson::GenericReader<JsonEncoding, JsonEncoding, rapidjson::CrtAllocator> reader;
    // In place, so that the names stay where they are.
    rapidjson::GenericInsituStringStream<JsonEncoding> stream(text.data());
    reader.Parse<kFlags | rapidjson::kParseInsituFlag>(stream, handler);
}

void parse(const wstring& text, JsonDocument& document)
{
    JsonValue before;
    static_cast<JsonValue&>(document).Swap(before);
    document.Parse<kFlags>(text.c_str());
    if (document.HasParseError())
    {
        static_cast<JsonValue&>(document).Swap(before);
    }
}

} // namespace

wostream& JsonTextIO::write(wostream& stream, const JsonDocument& document, bool pretty)
{
    const bool failedBefore = stream.fail();
    WideBuffer buffer;
    const bool complete = writeText(buffer, document, pretty);
    makeRoom(stream, buffer.text);
    stream.write(buffer.text.data(), static_cast<std::streamsize>(buffer.text.size()));
    stream.flush();
    if (!complete)
    {
        throw std::runtime_error("Cannot write object into json document");
    }
    if (stream.fail() && !failedBefore)
    {
        throw std::runtime_error("Cannot write json document into stream");
    }
    return stream;
}

wistream& JsonTextIO::read(wistream& stream, JsonDocument& document)
{
    return read(stream, document, {});
}

wistream& JsonTextIO::read(wistream& stream, JsonDocument& document, const ReadRules& rules)
{
    wstring text = readAll(stream);
    check(text, rules);
    unescapeLoneSurrogates(text);
    parse(text, document);
    return stream;
}

void JsonTextIO::check(const wstring& text, const ReadRules& rules)
{
    if (!rules.hasRulesOfForm())
    {
        return;
    }
    wstring own = text;
    unescapeLoneSurrogates(own);
    requireRules(std::move(own), rules);
}

} // namespace vrx
