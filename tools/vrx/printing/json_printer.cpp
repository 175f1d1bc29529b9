#include "printing/json_printer.h"

#include "json/member.h"
#include "measures.h"
#include "printing/escaped.h"
#include "printing/scalar_text.h"

#include <algorithm>

namespace printing
{

namespace
{

constexpr std::size_t kMostElements = 16; // A matrix is shown as a whole.
constexpr std::size_t kMostUnits = 200;
constexpr std::size_t kIndent = 2;
constexpr std::size_t kDeepestIndent = 40;
constexpr std::size_t kColumns = 100;
constexpr std::size_t kPiece = std::size_t{1} << 16U;

bool isPacked(const vrx::JsonValue& value)
{
    return value.IsArray() &&
           std::all_of(value.Begin(), value.End(), [](const vrx::JsonValue& element) { return element.IsNumber(); });
}

std::size_t indentAt(std::size_t depth)
{
    return kIndent * std::min(depth, kDeepestIndent);
}

std::string more(std::size_t hidden)
{
    return "... " + tool::counted(hidden) + " more";
}

} // namespace

void JsonPrinter::print(const vrx::JsonValue& root)
{
    m_open.clear();
    printTree(root);
    m_out += '\n';
    flush();
}

void JsonPrinter::printTree(const vrx::JsonValue& root)
{
    printValue(root);
    while (!m_open.empty())
    {
        if (m_out.size() > kPiece)
        {
            flush();
            if (!m_stream)
            {
                return;
            }
        }
        Open& container = m_open.back();
        if (container.left == 0)
        {
            close();
            continue;
        }
        --container.left;
        const bool hasNext = container.left + container.hidden != 0;
        newLine(m_open.size());
        if (container.children.atName())
        {
            const vrx::JsonValue& name = container.children.next();
            put(m_palette.key, name.IsString() ? quoted(json::textOf(name)) : briefText(name));
            m_out += ": ";
        }
        const std::size_t depth = m_open.size();
        printValue(container.children.next());
        // The comma of a container stands behind its end.
        if (m_open.size() == depth && hasNext)
        {
            m_out += ',';
        }
    }
}

void JsonPrinter::printValue(const vrx::JsonValue& value)
{
    if ((value.IsObject() && !value.ObjectEmpty()) || (value.IsArray() && !isPacked(value)))
    {
        open(value);
    }
    else if (value.IsArray())
    {
        printNumbers(value);
    }
    else if (value.IsString())
    {
        printString(value);
    }
    else
    {
        put(value.IsNumber() ? m_palette.number : m_palette.literal, value.IsObject() ? "{}" : scalarText(value));
    }
}

void JsonPrinter::printString(const vrx::JsonValue& value)
{
    const mp::wstring_view text = json::textOf(value);
    const mp::wstring_view begin = m_all ? text : beginningOf(text, kMostUnits);
    put(m_palette.string, quoted(begin));
    if (begin.size() != text.size())
    {
        put(m_palette.note, more(text.size() - begin.size()));
    }
}

void JsonPrinter::printNumbers(const vrx::JsonValue& array)
{
    const std::size_t indent = indentAt(m_open.size() + 1);
    const std::size_t count = m_all ? array.Size() : std::min<std::size_t>(array.Size(), kMostElements);
    std::size_t column = indent;
    m_out += '[';
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::string text = scalarText(array[static_cast<rapidjson::SizeType>(i)]);
        if (i != 0)
        {
            m_out += ',';
            column += text.size() + 2;
            if (column > kColumns)
            {
                newLine(m_open.size() + 1);
                column = indent + text.size();
            }
            else
            {
                m_out += ' ';
            }
        }
        put(m_palette.number, text);
        if (m_out.size() > kPiece)
        {
            flush();
        }
    }
    if (count != array.Size())
    {
        m_out += ", ";
        put(m_palette.note, more(array.Size() - count));
    }
    m_out += ']';
}

void JsonPrinter::open(const vrx::JsonValue& container)
{
    const std::size_t count = container.IsObject() ? container.MemberCount() : container.Size();
    const bool isShortened = container.IsArray() && !m_all && count > kMostElements;
    const std::size_t left = isShortened ? kMostElements : count;
    m_out += container.IsObject() ? '{' : '[';
    m_open.push_back({vrx::JsonChildren(container), left, count - left});
}

void JsonPrinter::close()
{
    const Open& container = m_open.back();
    const bool isObject = container.children.isObject();
    if (container.hidden != 0)
    {
        newLine(m_open.size());
        put(m_palette.note, more(container.hidden));
    }
    m_open.pop_back();
    newLine(m_open.size());
    m_out += isObject ? '}' : ']';
    if (!m_open.empty() && m_open.back().left + m_open.back().hidden != 0)
    {
        m_out += ',';
    }
}

void JsonPrinter::newLine(std::size_t depth)
{
    m_out += '\n';
    m_out.append(indentAt(depth), ' ');
}

void JsonPrinter::put(const char* color, const std::string& text)
{
    m_out += color;
    m_out += text;
    if (*color != '\0')
    {
        m_out += m_palette.end;
    }
}

void JsonPrinter::flush()
{
    m_stream.write(m_out.data(), static_cast<std::streamsize>(m_out.size()));
    m_out.clear();
}

} // namespace printing
