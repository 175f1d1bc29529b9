#include "vrx_api/command/command.h"

#include "kolt/log.h"
#include "vrx_api/command/export_options_impl.h"
#include "vrx_api/command/ferrant_interface_table.h"
#include "vrx_api/command/import_options_impl.h"
#include "vrx_api/json/fields.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/message.h"
#include "vrx_api/legacy/export_options_impl.h"
#include "vrx_api/legacy/import_options_impl.h"

#include <stdexcept>

namespace vrx
{

static constexpr Key kInterface = WIDE("ferrant_interface");
static constexpr Key kCommand = WIDE("command");
static constexpr Key kOptions = WIDE("options");

static constexpr EnumName<Command::EType> kTypes[] = {
    {Command::EType::Unknown, WIDE("unknown")}, {Command::EType::Info, WIDE("info")},
    {Command::EType::Import, WIDE("import")},   {Command::EType::Export, WIDE("export")},
    {Command::EType::Ping, WIDE("ping")},
};
static constexpr const auto& enumTable(Command::EType)
{
    return kTypes;
}
static constexpr Command::EType enumFallback(Command::EType)
{
    return Command::EType::Unknown;
}

namespace
{

// The options depend on the type and the interface; the operations of the command read and write them.
struct OptionsOfAnyKind
{
};

const std::type_info* optionsClass(const JsonValue&, const JsonValue& command);

void outline(Shape& shape, const OptionsOfAnyKind&)
{
    shape.kind = EShape::OneOf;
    shape.classes = {&typeid(ImportOptionsImpl), &typeid(ExportOptionsImpl), &typeid(LegacyImportOptionsImpl),
                     &typeid(LegacyExportOptionsImpl)};
    shape.choose = &optionsClass;
}

} // namespace

template <class Self, class Fields>
void Command::describe(Self& self, Fields& fields)
{
    fields.always(kInterface, self.m_internalInterface);
    fields.required(kCommand, "Json document has no command type.", self.m_type);
    fields.apart(kOptions, OptionsOfAnyKind());
}
template struct Described<Command>;
template struct Listed<Command>;

namespace
{

const std::type_info* optionsClass(const JsonValue&, const JsonValue& command)
{
    Command::EType type = Command::EType::Unknown;
    EFerrantInterface interface = Command().internalInterface();
    FieldReader fields{TreeValue(&command)};
    fields.always(kInterface, interface);
    fields.always(kCommand, type);
    const bool isLegacy = interface == EFerrantInterface::Legacy;
    switch (type)
    {
    case Command::EType::Import:
        return isLegacy ? &typeid(LegacyImportOptionsImpl) : &typeid(ImportOptionsImpl);
    case Command::EType::Export:
        return isLegacy ? &typeid(LegacyExportOptionsImpl) : &typeid(ExportOptionsImpl);
    default:
        return nullptr;
    }
}

// The options if they are of this library's make; otherwise throws.
template <class Impl, class Options>
const FerrantOptions& requireImpl(const std::shared_ptr<Options>& options, const char* refusal)
{
    const auto* const impl = dynamic_cast<const Impl*>(options.get());
    if (impl == nullptr)
    {
        throw std::invalid_argument(refusal);
    }
    return *impl;
}

template <class Options>
void replaceByRead(std::shared_ptr<Options>& held, const std::shared_ptr<Options>& made, const JsonValue& value)
{
    made->readObject(value);
    held = made;
}

} // namespace

void Command::writeObject(wostream& stream) const
{
    kolt::trace();
    JsonDocument document;
    JsonAllocator& allocator = document.GetAllocator();
    writeMembers(*this, document, allocator);
    if (carriesOptions())
    {
        addMember(document, kOptions, treeOf(options(), allocator), allocator);
    }
    JsonTextIO::write(stream, document, true);
}

void Command::readObject(wistream& stream)
{
    kolt::trace();
    JsonDocument document;
    readMessage(stream, document);
    readMembers(*this, document);
    if (carriesOptions())
    {
        const JsonValue* const options = find(document, kOptions);
        if (options == nullptr || !options->IsObject())
        {
            throw std::invalid_argument(m_type == EType::Import ? "Import command should contain options."
                                                                : "Export command should contain options.");
        }
        readOptions(*options);
    }
}

// The options that an import or an export writes.
const FerrantOptions& Command::options() const
{
    const bool isImport = m_type == EType::Import;
    if (m_internalInterface == EFerrantInterface::Legacy)
    {
        return isImport ? requireImpl<LegacyImportOptionsImpl>(
                              m_legacyImportOptions, "Import(LEGACY) command should contain import options(LEGACY)")
                        : requireImpl<LegacyExportOptionsImpl>(
                              m_legacyExportOptions, "Export(LEGACY) command should contain export options(LEGACY)");
    }
    return isImport ? requireImpl<ImportOptionsImpl>(m_importOptions, "Import command should contain import options")
                    : requireImpl<ExportOptionsImpl>(m_exportOptions, "Export command should contain export options");
}

void Command::readOptions(const JsonValue& value)
{
    const bool isImport = m_type == EType::Import;
    if (m_internalInterface == EFerrantInterface::Legacy)
    {
        isImport ? replaceByRead(m_legacyImportOptions, newLegacyImportOptions(), value)
                 : replaceByRead(m_legacyExportOptions, newLegacyExportOptions(), value);
    }
    else
    {
        isImport ? replaceByRead(m_importOptions, newImportOptions(), value)
                 : replaceByRead(m_exportOptions, newExportOptions(), value);
    }
}

std::shared_ptr<ImportOptions> Command::newImportOptions()
{
    return std::make_shared<ImportOptionsImpl>();
}

std::shared_ptr<ExportOptions> Command::newExportOptions()
{
    return std::make_shared<ExportOptionsImpl>();
}

std::shared_ptr<LegacyImportOptions> Command::newLegacyImportOptions()
{
    return std::make_shared<LegacyImportOptionsImpl>();
}

std::shared_ptr<LegacyExportOptions> Command::newLegacyExportOptions()
{
    return std::make_shared<LegacyExportOptionsImpl>();
}

void Command::setImportOptions(const std::shared_ptr<ImportOptions>& options)
{
    requireImpl<ImportOptionsImpl>(options, "Wrong implementation of ImportOptions interface.");
    m_importOptions = options;
}

void Command::setExportOptions(const std::shared_ptr<ExportOptions>& options)
{
    requireImpl<ExportOptionsImpl>(options, "Wrong implementation of ExportOptions interface");
    m_exportOptions = options;
}

} // namespace vrx
