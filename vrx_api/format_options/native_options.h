#pragma once

#include "vrx_api/format_options/format_options.h"
#include "vrx_api/format_options/shared_modes.h"
#include "vrx_api/format_options/shared_settings.h"

#include <cstdint>

namespace vrx
{

/// Whether holes count as manufacturing features when they lie in sheets: bodies without a thickness.
enum class EImportMfgHolesOnSheetsMode : std::int32_t
{
    Unknown = 0,
    Ignore = 1,
    Include = 2,
};

/// Whether driving dimensions are taken: those by which the shape was made, so that a change of one changes the model.
enum class ETranslateDrivingDimensionsModeType : std::int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// Whether the curves and points are taken that only help to construct the shape.
enum class ETranslateConstructionGeometriesModeType : std::int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// Whether the planes, axes, points and coordinate systems are taken that features refer to.
enum class ETranslateReferenceGeometryMode : std::int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// Which of the states of a model are taken: the active one only, or the others too.
enum class EActiveStateProcessingModeType : std::int32_t
{
    Unknown = 0,
    ActiveOnly = 1,
    ActiveAndInactive = 2,
};

namespace imp
{

// Search paths say where the files of referenced parts are looked for, in the translator's own syntax. The
// configuration that is wanted, a variant of the model that its file holds, is given by its name.

/// The settings for an import of Creo models.
class VRX_API OptionsCreo : public FormatOptions, public PersistentNameSettings
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    const wstring& alternateSearchPaths() const { return m_alternateSearchPaths; }
    void setAlternateSearchPaths(const wstring& paths) { m_alternateSearchPaths = paths; }

    const wstring& importConfiguration() const { return m_importConfiguration; }
    void setImportConfiguration(const wstring& configuration) { m_importConfiguration = configuration; }

    EImportMfgHolesOnSheetsMode mfgHolesOnSheetsMode() const { return m_mfgHolesOnSheetsMode; }
    void setMfgHolesOnSheetsMode(EImportMfgHolesOnSheetsMode mode) { m_mfgHolesOnSheetsMode = mode; }

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType mode) { m_suppressedEntitiesMode = mode; }

    EVisuPMIProcessingMode visuPMIProcessingMode() const { return m_visuPMIProcessingMode; }
    void setVisuPMIProcessingMode(EVisuPMIProcessingMode mode) { m_visuPMIProcessingMode = mode; }

    ETranslateDrivingDimensionsModeType translateDrivingDimensionsMode() const
    {
        return m_translateDrivingDimensionsMode;
    }
    void setTranslateDrivingDimensionsMode(ETranslateDrivingDimensionsModeType mode)
    {
        m_translateDrivingDimensionsMode = mode;
    }

    ETranslateConstructionGeometriesModeType translateConstructionGeometriesMode() const
    {
        return m_translateConstructionGeometriesMode;
    }
    void setTranslateConstructionGeometriesMode(ETranslateConstructionGeometriesModeType mode)
    {
        m_translateConstructionGeometriesMode = mode;
    }

    ETranslateReferenceGeometryMode translateReferenceGeometryMode() const { return m_translateReferenceGeometryMode; }
    void setTranslateReferenceGeometryMode(ETranslateReferenceGeometryMode mode)
    {
        m_translateReferenceGeometryMode = mode;
    }

private:
    friend struct Described<OptionsCreo>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_alternateSearchPaths;
    wstring m_importConfiguration;
    EImportMfgHolesOnSheetsMode m_mfgHolesOnSheetsMode{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EVisuPMIProcessingMode m_visuPMIProcessingMode{};
    ETranslateDrivingDimensionsModeType m_translateDrivingDimensionsMode{};
    ETranslateConstructionGeometriesModeType m_translateConstructionGeometriesMode{};
    ETranslateReferenceGeometryMode m_translateReferenceGeometryMode{};
};

/// The settings for an import of NX models.
class VRX_API OptionsNX : public FormatOptions, public PersistentNameSettings
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    const wstring& assemblySearchPaths() const { return m_assemblySearchPaths; }
    void setAssemblySearchPaths(const wstring& paths) { m_assemblySearchPaths = paths; }

    EAssemblyPathPrefType assemblyPathPreference() const { return m_assemblyPathPreference; }
    void setAssemblyPathPreference(EAssemblyPathPrefType preference) { m_assemblyPathPreference = preference; }

    const wstring& importConfiguration() const { return m_importConfiguration; }
    void setImportConfiguration(const wstring& configuration) { m_importConfiguration = configuration; }

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType mode) { m_suppressedEntitiesMode = mode; }

    EVisuPMIProcessingMode visuPMIProcessingMode() const { return m_visuPMIProcessingMode; }
    void setVisuPMIProcessingMode(EVisuPMIProcessingMode mode) { m_visuPMIProcessingMode = mode; }

private:
    friend struct Described<OptionsNX>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_assemblySearchPaths;
    EAssemblyPathPrefType m_assemblyPathPreference{};
    wstring m_importConfiguration;
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EVisuPMIProcessingMode m_visuPMIProcessingMode{};
};

/// The settings for an import of Inventor models.
class VRX_API OptionsInventor : public FormatOptions, public PersistentNameSettings
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    const wstring& assemblySearchPaths() const { return m_assemblySearchPaths; }
    void setAssemblySearchPaths(const wstring& paths) { m_assemblySearchPaths = paths; }

    EAssemblyPathPrefType assemblyPathPreference() const { return m_assemblyPathPreference; }
    void setAssemblyPathPreference(EAssemblyPathPrefType preference) { m_assemblyPathPreference = preference; }

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType mode) { m_suppressedEntitiesMode = mode; }

    EActiveStateProcessingModeType activeStateProcessingMode() const { return m_activeStateProcessingMode; }
    void setActiveStateProcessingMode(EActiveStateProcessingModeType mode) { m_activeStateProcessingMode = mode; }

private:
    friend struct Described<OptionsInventor>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_assemblySearchPaths;
    EAssemblyPathPrefType m_assemblyPathPreference{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EActiveStateProcessingModeType m_activeStateProcessingMode{};
};

/// The settings for an import of Solid Edge models.
class VRX_API OptionsSolidEdge : public FormatOptions, public PersistentNameSettings
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    const wstring& assemblySearchPaths() const { return m_assemblySearchPaths; }
    void setAssemblySearchPaths(const wstring& paths) { m_assemblySearchPaths = paths; }

    EAssemblyPathPrefType assemblyPathPreference() const { return m_assemblyPathPreference; }
    void setAssemblyPathPreference(EAssemblyPathPrefType preference) { m_assemblyPathPreference = preference; }

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

private:
    friend struct Described<OptionsSolidEdge>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_assemblySearchPaths;
    EAssemblyPathPrefType m_assemblyPathPreference{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
};

} // namespace imp

} // namespace vrx
