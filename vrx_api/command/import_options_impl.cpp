#include "vrx_api/command/import_options_impl.h"

#include "mp/narrow.h"
#include "vrx_api/command/options_fields.h"

namespace vrx
{

static constexpr const char* kFileLine = "ImportOptions.file = ";

template <class Self, class Fields>
void ImportOptionsImpl::describe(Self& self, Fields& fields)
{
    describeFile(fields, self.m_file);
    logReading(fields, kFileLine, mp::Narrow{self.m_file});
    fields.filled(WIDE("format_options"), forFile(self.m_file, self.m_formatOptions));
}
template struct Described<ImportOptionsImpl>;

void ImportOptionsImpl::readObject(const JsonValue& value)
{
    readOptions(*this, value);
}

void ImportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    kolt::trace();
    kolt::log(kolt::kDebug, kFileLine, mp::Narrow{m_file});
    writeMembers(*this, value, allocator);
}

} // namespace vrx
