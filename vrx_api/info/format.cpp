#include "vrx_api/info/format.h"

#include "vrx_api/json/kind.h"
#include "vrx_api/json/shapes.h"

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/replace.hpp>
#include <boost/algorithm/string/split.hpp>

#include <algorithm>
#include <regex>
#include <string>
#include <string_view>

namespace vrx
{

namespace
{

// Locales and regular expressions know the platform's wide unit only: texts go there unit by unit.
std::wstring toNativeLower(const wstring& text)
{
    return boost::algorithm::to_lower_copy(std::wstring(text.begin(), text.end()));
}

// What the dot of a regular expression does not match.
bool isLineTerminator(wchar_t unit)
{
    return unit == L'\n' || unit == L'\r' || unit == 0x2028 || unit == 0x2029;
}

bool isRegexSyntax(wchar_t unit)
{
    return std::wstring_view(L"^$\\+?()[]{}|").find(unit) != std::wstring_view::npos || isLineTerminator(unit);
}

// Matches the whole text; a star stands for any text within a line.
bool matchesStars(std::wstring_view text, std::wstring_view pattern)
{
    std::size_t atText = 0;
    std::size_t atPattern = 0;
    std::size_t behindStar = std::wstring_view::npos;
    std::size_t starEnd = 0;
    while (atText < text.size())
    {
        const bool more = atPattern < pattern.size();
        if (more && pattern[atPattern] == L'*')
        {
            behindStar = ++atPattern;
            starEnd = atText;
        }
        else if (more && pattern[atPattern] == text[atText])
        {
            ++atPattern;
            ++atText;
        }
        else if (behindStar != std::wstring_view::npos && !isLineTerminator(text[starEnd]))
        {
            // The last star takes one unit more.
            atPattern = behindStar;
            atText = ++starEnd;
        }
        else
        {
            return false;
        }
    }
    return pattern.find_first_not_of(L'*', atPattern) == std::wstring_view::npos;
}

bool hasExtension(const std::wstring& path, std::wstring extension)
{
    // std::regex recurses for each unit of the path and overflows the stack on long ones, so that only an extension
    // that needs it gets there.
    if (std::none_of(extension.begin(), extension.end(), isRegexSyntax))
    {
        return matchesStars(path, L"*." + extension);
    }
    boost::algorithm::replace_all(extension, L".", L"\\.");
    boost::algorithm::replace_all(extension, L"*", L".*");
    return std::regex_match(path, std::wregex(L".*\\." + extension));
}

} // namespace

template <class Self, class Fields>
void Format::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("description"), self.m_description);
    fields.always(WIDE("extensions"), valid(self.m_extensions));
    fields.always(WIDE("filters"), valid(self.m_filterExtensions));
}
template struct Described<Format>;
template struct Listed<Format>;

void Format::readObject(const JsonValue& value)
{
    kolt::trace();
    requireObject(value, "Format::readFrom > !jsonObject.IsObject()");
    readMembers(*this, value);
}

void Format::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

Format& Format::setDescription(const wstring& description)
{
    m_description = description;
    return *this;
}

Format& Format::setExtensions(const std::vector<wstring>& extensions)
{
    m_extensions = extensions;
    return *this;
}

Format& Format::addExtension(const wstring& extension)
{
    m_extensions.push_back(extension);
    return *this;
}

Format& Format::addFilterExtensions(const wstring& extensions)
{
    m_filterExtensions.push_back(extensions);
    return *this;
}

std::vector<wstring> Format::getFilters() const
{
    std::vector<wstring> filters;
    filters.reserve(m_filterExtensions.size());
    for (const wstring& extensions : m_filterExtensions)
    {
        filters.push_back(m_description + WIDE("|") + extensions);
    }
    return filters;
}

bool Format::is(const wstring& path) const
{
    const std::wstring lowerPath = toNativeLower(path);
    for (const wstring& entry : m_filterExtensions)
    {
        std::vector<std::wstring> extensions;
        boost::algorithm::split(extensions, toNativeLower(entry), boost::algorithm::is_any_of(L";"));
        for (const std::wstring& extension : extensions)
        {
            if (hasExtension(lowerPath, extension))
            {
                return true;
            }
        }
    }
    return false;
}

} // namespace vrx
