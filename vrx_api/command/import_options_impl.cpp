#include "vrx_api/command/import_options_impl.h"

#include "mp/narrow.h"
#include "vrx_api/json/fields.h"
#include "vrx_api/json/required.h"

#include <utility>

namespace vrx
{

static constexpr Key kFile = WIDE("file");
static constexpr Key kFormatOptions = WIDE("format_options");

static void logFile(const wstring& file)
{
    kolt::log(kolt::kDebug, "ImportOptions.file = ", mp::Narrow{file});
}

void ImportOptionsImpl::readObject(const JsonValue& value)
{
    kolt::trace();
    requireObject(value, "!object.IsObject()");
    m_file = requiredText(value, kFile, "Json document has no valid file path.");
    logFile(m_file);
    const JsonValue* const formatOptions = find(value, kFormatOptions);
    if (formatOptions != nullptr && formatOptions->IsArray())
    {
        m_formatOptions.read(*formatOptions, m_file);
    }
}

void ImportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    kolt::trace();
    value.SetObject();
    FieldWriter fields(value, allocator);
    fields.always(kFile, m_file);
    logFile(m_file);
    fields.filled(kFormatOptions, m_formatOptions);
}

const wstring& ImportOptionsImpl::file() const
{
    return m_file;
}

void ImportOptionsImpl::setFile(const wstring& file)
{
    m_file = file;
}

std::shared_ptr<IFormatOptions> ImportOptionsImpl::formatOptions(EFormatType format) const
{
    return m_formatOptions.get(format);
}

void ImportOptionsImpl::setFormatOptions(std::shared_ptr<IFormatOptions> options)
{
    m_formatOptions.set(std::move(options));
}

} // namespace vrx
