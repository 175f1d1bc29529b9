#include "vrx_api/info/ferrant_info.h"

#include "vrx_api/command/ferrant_interface_table.h"
#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"
#include "vrx_api/json/json_text_io.h"
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

namespace
{

constexpr Key kName = WIDE("name");
constexpr Key kVersion = WIDE("version");
constexpr Key kInterface = WIDE("ferrant_interface");
constexpr Key kCores = WIDE("thirdparty_cores");
constexpr Key kParasolidMode = WIDE("parasolid_mode");
constexpr Key kImportFormats = WIDE("import_formats");
constexpr Key kExportFormats = WIDE("export_formats");

// A name outside the table reads as the number 0, as in the other messages.
template <class E>
void readName(const JsonValue& object, Key key, E& field)
{
    if (const JsonValue* const name = findString(object, key))
    {
        field = enumValueOr(textOf(*name), E{});
    }
}

template <class T>
void appendRead(const JsonValue& object, Key key, std::vector<std::shared_ptr<T>>& objects)
{
    const JsonValue* const array = find(object, key);
    if (array == nullptr || !array->IsArray())
    {
        return;
    }
    for (const JsonValue& element : array->GetArray())
    {
        // An element that throws is not appended.
        const auto read = std::make_shared<T>();
        read->readObject(element);
        objects.push_back(read);
    }
}

template <class T>
T& appendNew(std::vector<std::shared_ptr<T>>& objects)
{
    return *objects.emplace_back(std::make_shared<T>());
}

} // namespace

void FerrantInfo::writeObject(wostream& stream) const
{
    kolt::trace();
    JsonDocument document(rapidjson::kObjectType);
    FieldWriter fields(document, document.GetAllocator());
    fields.always(kName, m_name);
    fields.always(kVersion, m_version);
    fields.always(kInterface, m_requestedInterface);
    fields.filled(kCores, m_thirdpartyCores);
    fields.always(kParasolidMode, m_parasolidMode);
    fields.filled(kImportFormats, m_importFormats);
    fields.filled(kExportFormats, m_exportFormats);
    JsonTextIO::write(stream, document, true);
}

void FerrantInfo::readObject(wistream& stream)
{
    kolt::trace();
    JsonDocument document;
    readMessage(stream, document);
    FieldReader fields(document);
    fields.always(kName, m_name);
    fields.always(kVersion, m_version);
    readName(document, kInterface, m_requestedInterface);
    appendRead(document, kCores, m_thirdpartyCores);
    readName(document, kParasolidMode, m_parasolidMode);
    appendRead(document, kImportFormats, m_importFormats);
    appendRead(document, kExportFormats, m_exportFormats);
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
