#include "vrx_api/command/format_options_map.h"

#include "kolt/log.h"
#include "mp/narrow.h"

#include <utility>

namespace vrx
{

std::shared_ptr<IFormatOptions> FormatOptionsMap::get(EFormatType format) const
{
    const auto found = m_options.find(format);
    return found == m_options.end() ? nullptr : found->second;
}

void FormatOptionsMap::set(std::shared_ptr<IFormatOptions> options)
{
    if (options != nullptr)
    {
        const EFormatType format = options->formatType();
        m_options[format] = std::move(options);
    }
}

void FormatOptionsMap::read(const JsonValue& array, const wstring& file)
{
    for (const JsonValue& element : array.GetArray())
    {
        std::shared_ptr<IFormatOptions> options = IFormatOptions::readOptions(element);
        if (options == nullptr)
        {
            kolt::log(kolt::kError, "Specific format options cannot be read, file: .", mp::Narrow{file});
        }
        set(std::move(options));
    }
}

std::vector<std::shared_ptr<IFormatOptions>> FormatOptionsMap::all() const
{
    std::vector<std::shared_ptr<IFormatOptions>> all;
    for (const auto& [format, options] : m_options)
    {
        all.push_back(options);
    }
    return all;
}

} // namespace vrx
