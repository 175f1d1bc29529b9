#pragma once

#include "vrx_api/format_options/format_options.h"
#include "vrx_api/format_options/shared_modes.h"
#include "vrx_api/format_options/shared_settings.h"

#include <cstdint>

namespace vrx
{

/// Whether the in-work object of a part counts: the feature of its tree that its author works on. The features behind
/// it are not in the shape yet.
enum class EProcessInWorkObjectModeType : std::int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// Whether objects get their names in the short or in the long form.
enum class ENameProcessingModeType : std::int32_t
{
    Unknown = 0,
    ShortNames = 1,
    LongNames = 2,
};

/// Whether an assembly is taken with its sheet metal parts unfolded: flat, as they were before they were bent.
enum class EAssemblyUnfoldedViewMode : std::int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// What is taken of the manufacturing of a part: its features, or the shapes that result from them.
enum class EImportMfgProcessingModeType : std::int32_t
{
    Unknown = 0,
    FeaturesOnly = 1,
    ResultsOnly = 2,
};

/// Which manufacturing data are taken: the features of an `ExcMfgData`, such as holes and threads.
enum class EProcessMfgDataModeType : std::int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Which documents of an assembly are loaded only when they are needed. It has no "unknown".
enum class EDocumentDelayLoadingMode : std::int32_t
{
    None = 0,
    Part = 1,
};

namespace imp
{

/// The settings for an import of CATIA V4 models.
class VRX_API OptionsCatiaV4 : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    EImportEntities importEntities() const { return m_importEntities; }
    void setImportEntities(EImportEntities entities) { m_importEntities = entities; }

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

    /// The layers that are wanted, in the translator's own syntax.
    const wstring& layerFilter() const { return m_layerFilter; }
    void setLayerFilter(const wstring& filter) { m_layerFilter = filter; }

private:
    friend struct Described<OptionsCatiaV4>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EImportEntities m_importEntities{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    wstring m_layerFilter;
};

/// The settings for an import of CATIA V5 parts and products.
class VRX_API OptionsCatiaV5 : public FormatOptions, public VisualizationSettings, public PersistentNameSettings
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    EProcessInWorkObjectModeType processInWorkObject() const { return m_processInWorkObject; }
    void setProcessInWorkObject(EProcessInWorkObjectModeType mode) { m_processInWorkObject = mode; }

    ENameProcessingModeType nameProcessingMode() const { return m_nameProcessingMode; }
    void setNameProcessingMode(ENameProcessingModeType mode) { m_nameProcessingMode = mode; }

    EAssemblyUnfoldedViewMode assemblyUnfoldedViewMode() const { return m_assemblyUnfoldedViewMode; }
    void setAssemblyUnfoldedViewMode(EAssemblyUnfoldedViewMode mode) { m_assemblyUnfoldedViewMode = mode; }

    EImportMfgProcessingModeType mfgProcessingMode() const { return m_mfgProcessingMode; }
    void setMfgProcessingMode(EImportMfgProcessingModeType mode) { m_mfgProcessingMode = mode; }

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType mode) { m_suppressedEntitiesMode = mode; }

    EVisuPMIProcessingMode visuPMIProcessingMode() const { return m_visuPMIProcessingMode; }
    void setVisuPMIProcessingMode(EVisuPMIProcessingMode mode) { m_visuPMIProcessingMode = mode; }

    EProcessMfgDataModeType processMfgDataMode() const { return m_processMfgDataMode; }
    void setProcessMfgDataMode(EProcessMfgDataModeType mode) { m_processMfgDataMode = mode; }

    EDocumentDelayLoadingMode documentDelayLoadingMode() const { return m_documentDelayLoadingMode; }
    void setDocumentDelayLoadingMode(EDocumentDelayLoadingMode mode) { m_documentDelayLoadingMode = mode; }

private:
    friend struct Described<OptionsCatiaV5>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EProcessInWorkObjectModeType m_processInWorkObject{};
    ENameProcessingModeType m_nameProcessingMode{};
    EAssemblyUnfoldedViewMode m_assemblyUnfoldedViewMode{};
    EImportMfgProcessingModeType m_mfgProcessingMode{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EVisuPMIProcessingMode m_visuPMIProcessingMode{};
    EProcessMfgDataModeType m_processMfgDataMode{};
    EDocumentDelayLoadingMode m_documentDelayLoadingMode{};
};

/// The settings for an import of CATIA V5 drawings.
class VRX_API OptionsCatiaV5Drawing : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

    EVisuPMIProcessingMode visuPMIProcessingMode() const { return m_visuPMIProcessingMode; }
    void setVisuPMIProcessingMode(EVisuPMIProcessingMode mode) { m_visuPMIProcessingMode = mode; }

private:
    friend struct Described<OptionsCatiaV5Drawing>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    EVisuPMIProcessingMode m_visuPMIProcessingMode{};
};

/// The settings for an import of 3D XML files.
class VRX_API Options3DXML : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    EVisuPMIProcessingMode visuPMIProcessingMode() const { return m_visuPMIProcessingMode; }
    void setVisuPMIProcessingMode(EVisuPMIProcessingMode mode) { m_visuPMIProcessingMode = mode; }

private:
    friend struct Described<Options3DXML>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EVisuPMIProcessingMode m_visuPMIProcessingMode{};
};

/// The settings for an import of XCGM files.
class VRX_API OptionsXCGM : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    EVisuPMIProcessingMode visuPMIProcessingMode() const { return m_visuPMIProcessingMode; }
    void setVisuPMIProcessingMode(EVisuPMIProcessingMode mode) { m_visuPMIProcessingMode = mode; }

private:
    friend struct Described<OptionsXCGM>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EVisuPMIProcessingMode m_visuPMIProcessingMode{};
};

} // namespace imp

} // namespace vrx
