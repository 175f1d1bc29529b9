#include "vrx_api/command/export_options_impl.h"

#include "mp/narrow.h"
#include "vrx_api/command/options_fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExportOptionsImpl::describe(Self& self, Fields& fields)
{
    describeFile(fields, self.m_file);
    fields.filled(WIDE("format_version"), self.m_formatVersion);
    fields.filled(WIDE("geometry_flags"), self.m_geometryFlags);
}
template struct Described<ExportOptionsImpl>;

void ExportOptionsImpl::readObject(const JsonValue& value)
{
    readOptions(*this, value);
    logFields();
}

void ExportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    kolt::trace();
    writeMembers(*this, value, allocator);
    logFields();
}

void ExportOptionsImpl::logFields() const
{
    kolt::log(kolt::kDebug, "ExportOptions.file = ", mp::Narrow{m_file});
    kolt::log(kolt::kDebug, "ExportOptions.formatVersion = ", mp::Narrow{m_formatVersion});
    kolt::log(kolt::kDebug, "ExportOptions.geometryFlags = ", m_geometryFlags);
}

} // namespace vrx
