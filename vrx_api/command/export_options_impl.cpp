#include "vrx_api/command/export_options_impl.h"

#include "mp/narrow.h"
#include "vrx_api/json/fields.h"
#include "vrx_api/json/required.h"

namespace vrx
{

static constexpr Key kFile = WIDE("file");

template <class Self, class Fields>
void ExportOptionsImpl::describe(Self& self, Fields& fields)
{
    fields.always(kFile, self.m_file);
    fields.filled(WIDE("format_version"), self.m_formatVersion);
    fields.filled(WIDE("geometry_flags"), self.m_geometryFlags);
}
template struct Described<ExportOptionsImpl>;

void ExportOptionsImpl::readObject(const JsonValue& value)
{
    kolt::trace();
    requireObject(value, "!object.IsObject()");
    requiredText(value, kFile, "Json document has no valid file path.");
    readMembers(*this, value);
    logFields();
}

void ExportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
    logFields();
}

void ExportOptionsImpl::logFields() const
{
    kolt::log(kolt::kDebug, "ExportOptions.file = ", mp::Narrow{m_file});
    kolt::log(kolt::kDebug, "ExportOptions.formatVersion = ", mp::Narrow{m_formatVersion});
    kolt::log(kolt::kDebug, "ExportOptions.geometryFlags = ", m_geometryFlags);
}

const wstring& ExportOptionsImpl::file() const
{
    return m_file;
}

void ExportOptionsImpl::setFile(const wstring& file)
{
    m_file = file;
}

const wstring& ExportOptionsImpl::formatVersion() const
{
    return m_formatVersion;
}

void ExportOptionsImpl::setFormatVersion(const wstring& version)
{
    m_formatVersion = version;
}

int ExportOptionsImpl::geometryFlags() const
{
    return m_geometryFlags;
}

void ExportOptionsImpl::setGeometryFlags(int flags)
{
    m_geometryFlags = flags;
}

} // namespace vrx
