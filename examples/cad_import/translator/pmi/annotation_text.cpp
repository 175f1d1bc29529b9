#include "pmi/annotation_text.h"

#include "mp/narrow.h"

#include <cstddef>
#include <string>

namespace
{

void replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    {
        text.replace(at, from.size(), to);
    }
}

std::vector<std::string> split(const std::string& text, const std::string& separator)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (std::size_t end = text.find(separator); end != std::string::npos; end = text.find(separator, begin))
    {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + separator.size();
    }
    parts.push_back(text.substr(begin));
    return parts;
}

// The descriptive items of the representations of the properties of a record; all of them for a null name.
std::vector<mp::wstring> descriptionsOf(const StepRecord& record, const char* name)
{
    std::vector<mp::wstring> texts;
    for (const StepRecord& property :
         record.is("PROPERTY_DEFINITION") ? std::vector<StepRecord>{record} : record.users("PROPERTY_DEFINITION"))
    {
        for (const StepRecord& values : property.users("PROPERTY_DEFINITION_REPRESENTATION"))
        {
            for (const StepRecord& item : values.next(1).nexts(1))
            {
                const bool isWanted = name == nullptr || mp::toNarrow(item.text(0)) == name;
                if (item.is("DESCRIPTIVE_REPRESENTATION_ITEM") && isWanted)
                {
                    texts.push_back(item.text(1));
                }
            }
        }
    }
    return texts;
}

void addLines(AnnotationText& text, const std::string& lines, const std::string& separator)
{
    for (std::string& line : split(lines, separator))
    {
        replaceAll(line, "\\w", " ");
        replaceAll(line, "#{diameter}", "\u2300");
        replaceAll(line, "\uF056", "\u2194"); // "between", in the private use of one font
        const std::size_t first = line.find_first_not_of(" \r");
        if (first != std::string::npos)
        {
            text.lines.push_back(mp::toWide(line.substr(first)));
        }
    }
}

std::string countOf(const std::string& dimension)
{
    const std::size_t digits = dimension.find_first_not_of("0123456789");
    return digits != std::string::npos && digits > 0 && dimension[digits] == 'X' ? dimension.substr(0, digits + 1) : "";
}

// Parts between \x, each of a kind, such as DIM, FCF or TXT, with cells behind \w and lines behind \n (recommended
// practices for the representation and presentation of PMI in AP242).
void readString(AnnotationText& text, std::string string)
{
    replaceAll(string, "\\\\", "\\");
    for (const std::string& part : split(string, "\\x"))
    {
        const std::string content = part.size() > 5 ? part.substr(5) : "";
        if (part.compare(0, 3, "DIM") == 0)
        {
            text.count = mp::toWide(countOf(content));
        }
        else if (part.compare(0, 3, "TXT") == 0)
        {
            addLines(text, content, "\\n");
        }
    }
}

} // namespace

AnnotationText annotationText(const StepRecord& annotation, const std::vector<StepRecord>& about)
{
    AnnotationText text;
    std::vector<StepRecord> described = annotation.users("CHARACTERIZED_ITEM_WITHIN_REPRESENTATION");
    described.push_back(annotation);
    for (const StepRecord& record : described)
    {
        for (const mp::wstring& string : descriptionsOf(record, "equivalent unicode string"))
        {
            readString(text, mp::toNarrow(string));
        }
    }
    for (const StepRecord& property : about)
    {
        if (property.is("PROPERTY_DEFINITION") && text.lines.empty()) // the other says the same
        {
            for (const mp::wstring& words : descriptionsOf(property, nullptr))
            {
                addLines(text, mp::toNarrow(words), "\n");
            }
        }
    }
    return text;
}
