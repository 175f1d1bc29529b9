#pragma once

#include "mp/serializable.h"
#include "vrx_api/command/export_options.h"
#include "vrx_api/command/ferrant_interface.h"
#include "vrx_api/command/import_options.h"
#include "vrx_api/json/described.h"
#include "vrx_api/legacy/export_options.h"
#include "vrx_api/legacy/import_options.h"

#include <cstdint>
#include <memory>

namespace vrx
{

/// What the host asks of the translator. An import and an export carry options: those of the older interface when that
/// is the command's interface. Copies of a command share them.
class VRX_API Command : public mp::ISerializable
{
public:
    /// What is asked.
    enum class EType : std::int32_t
    {
        Unknown = 0,
        Info = 1,
        Import = 2,
        Export = 3,
        Ping = 4,
    };

    /// Throws `std::invalid_argument` when an import or an export has no options of its interface that the factories of
    /// this class made. The stream then has nothing of it.
    void writeObject(wostream& stream) const override;

    /// Throws `std::invalid_argument` for a text that is no JSON object, has no type, or lacks its options, and when
    /// the options refuse theirs. What was read before stays.
    void readObject(wistream& stream) override;

    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }

    EFerrantInterface internalInterface() const { return m_internalInterface; }
    void setInternalInterface(EFerrantInterface interfaceType) { m_internalInterface = interfaceType; }

    /// Empty options, for an import and for an export: a command takes no others.
    static std::shared_ptr<ImportOptions> newImportOptions();
    static std::shared_ptr<ExportOptions> newExportOptions();

    /// Options that `newImportOptions` did not make, null among them, are refused with `std::invalid_argument`.
    void setImportOptions(const std::shared_ptr<ImportOptions>& options);
    std::shared_ptr<ImportOptions> importOptions() const { return m_importOptions; }

    /// As for the import options, with `newExportOptions`.
    void setExportOptions(const std::shared_ptr<ExportOptions>& options);
    std::shared_ptr<ExportOptions> exportOptions() const { return m_exportOptions; }

    /// Empty options of the older interface, for an import and for an export.
    static std::shared_ptr<LegacyImportOptions> newLegacyImportOptions();
    static std::shared_ptr<LegacyExportOptions> newLegacyExportOptions();

    /// Takes any options: those of another make are refused when the command is written.
    void setLegacyImportOptions(const std::shared_ptr<LegacyImportOptions>& options)
    {
        m_legacyImportOptions = options;
    }
    std::shared_ptr<LegacyImportOptions> legacyImportOptions() const { return m_legacyImportOptions; }

    /// As for the import options.
    void setLegacyExportOptions(const std::shared_ptr<LegacyExportOptions>& options)
    {
        m_legacyExportOptions = options;
    }
    std::shared_ptr<LegacyExportOptions> legacyExportOptions() const { return m_legacyExportOptions; }

private:
    friend struct Described<Command>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    bool carriesOptions() const { return m_type == EType::Import || m_type == EType::Export; }
    const FerrantOptions& options() const;
    void readOptions(const JsonValue& value);

    EType m_type = EType::Unknown;
    EFerrantInterface m_internalInterface = EFerrantInterface::UConnect;
    std::shared_ptr<ImportOptions> m_importOptions;
    std::shared_ptr<ExportOptions> m_exportOptions;
    std::shared_ptr<LegacyImportOptions> m_legacyImportOptions;
    std::shared_ptr<LegacyExportOptions> m_legacyExportOptions;
};

} // namespace vrx
