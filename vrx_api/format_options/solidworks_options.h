#pragma once

#include "vrx_api/format_options/format_options.h"
#include "vrx_api/format_options/shared_modes.h"
#include "vrx_api/format_options/shared_settings.h"

#include <cstdint>

namespace vrx
{

/// Where the product structure is taken from: the assembly itself, the tessellated scene that was saved with it, or
/// both.
enum class EImportProductStructureRepresentationMode : std::int32_t
{
    Unknown = 0,
    AsmRep = 1,
    SavedVisuRep = 2,
    AsmRepAndSavedVisuRep = 3,
};

namespace imp
{

/// The settings for an import of SolidWorks parts and assemblies.
class VRX_API OptionsSolidWorks : public FormatOptions, public VisualizationSettings, public PersistentNameSettings
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    /// Where the files of referenced parts are looked for, in the translator's own syntax.
    const wstring& assemblySearchPaths() const { return m_assemblySearchPaths; }
    void setAssemblySearchPaths(const wstring& paths) { m_assemblySearchPaths = paths; }

    EAssemblyPathPrefType assemblyPathPreference() const { return m_assemblyPathPreference; }
    void setAssemblyPathPreference(EAssemblyPathPrefType preference) { m_assemblyPathPreference = preference; }

    /// The name of the configuration that is wanted: a variant of the model that its file holds.
    const wstring& importConfiguration() const { return m_importConfiguration; }
    void setImportConfiguration(const wstring& configuration) { m_importConfiguration = configuration; }

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType mode) { m_suppressedEntitiesMode = mode; }

    EImportProductStructureRepresentationMode productStructureMode() const { return m_productStructureMode; }
    void setProductStructureMode(EImportProductStructureRepresentationMode mode) { m_productStructureMode = mode; }

    EVisuPMIProcessingMode visuPMIProcessingMode() const { return m_visuPMIProcessingMode; }
    void setVisuPMIProcessingMode(EVisuPMIProcessingMode mode) { m_visuPMIProcessingMode = mode; }

private:
    friend struct Described<OptionsSolidWorks>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_assemblySearchPaths;
    EAssemblyPathPrefType m_assemblyPathPreference{};
    wstring m_importConfiguration;
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EImportProductStructureRepresentationMode m_productStructureMode{};
    EVisuPMIProcessingMode m_visuPMIProcessingMode{};
};

/// The settings for an import of SolidWorks drawings: nothing beyond the format itself.
class VRX_API OptionsSolidWorksDrawing : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

private:
    friend struct Described<OptionsSolidWorksDrawing>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);
};

} // namespace imp

} // namespace vrx
