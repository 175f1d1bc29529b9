#include "vrx_api/info/ferrant_info.h"

#include "kolt/log.h"
#include "vrx_api/command/ferrant_interface_table.h"
#include "vrx_api/json/add.h"
#include "vrx_api/json/message.h"

namespace vrx
{

static constexpr EnumName<EParasolidMode> kParasolidModes[] = {
    {EParasolidMode::Direct, WIDE("direct")},
    {EParasolidMode::Kernel, WIDE("kernel")},
};
static constexpr const auto& enumTable(EParasolidMode)
{
    return kParasolidModes;
}
static constexpr EParasolidMode enumFallback(EParasolidMode)
{
    return EParasolidMode::Direct;
}

template <class Self, class Fields>
void FerrantInfo::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("version"), self.m_version);
    fields.always(WIDE("ferrant_interface"), self.m_requestedInterface);
    fields.filled(WIDE("thirdparty_cores"), self.m_thirdpartyCores);
    fields.always(WIDE("parasolid_mode"), self.m_parasolidMode);
    fields.filled(WIDE("import_formats"), self.m_importFormats);
    fields.filled(WIDE("export_formats"), self.m_exportFormats);
}
template struct Described<FerrantInfo>;
template struct Listed<FerrantInfo>;

void FerrantInfo::writeObject(wostream& stream) const
{
    kolt::trace();
    writeMessage(*this, stream);
}

void FerrantInfo::readObject(wistream& stream)
{
    kolt::trace();
    JsonDocument document;
    readMessage(stream, document);
    readMembers(*this, document);
}

template <class T>
static T& appendNew(std::vector<std::shared_ptr<T>>& objects)
{
    return *objects.emplace_back(std::make_shared<T>());
}

ThirdpartyCore& FerrantInfo::newThirdpartyCore()
{
    return appendNew(m_thirdpartyCores);
}

void FerrantInfo::addThirdpartyCore(const std::shared_ptr<ThirdpartyCore>& core)
{
    add(m_thirdpartyCores, core, kSilently);
}

Format& FerrantInfo::newImportFormat()
{
    return appendNew(m_importFormats);
}

void FerrantInfo::addImportFormat(const std::shared_ptr<Format>& format)
{
    add(m_importFormats, format, kSilently);
}

void FerrantInfo::addImportFormats(const std::vector<std::shared_ptr<Format>>& formats)
{
    addAll(m_importFormats, formats, kSilently);
}

Format& FerrantInfo::newExportFormat()
{
    return appendNew(m_exportFormats);
}

void FerrantInfo::addExportFormat(const std::shared_ptr<Format>& format)
{
    add(m_exportFormats, format, kSilently);
}

void FerrantInfo::addExportFormats(const std::vector<std::shared_ptr<Format>>& formats)
{
    addAll(m_exportFormats, formats, kSilently);
}

} // namespace vrx
