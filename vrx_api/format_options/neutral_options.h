#pragma once

#include "vrx_api/format_options/format_options.h"
#include "vrx_api/format_options/shared_modes.h"

#include <cstdint>

namespace vrx
{

/// Where the names of layers are taken from: the assembly, or the views that were saved with it.
enum class ELayerNameProcessingModeType : std::int32_t
{
    Unknown = 0,
    AsmRep = 1,
    SavedVisuRep = 2,
};

/// Which edges come with the tessellated faces.
enum class EImportEdgesModeType : std::int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Which properties are taken that users gave to parts.
enum class EUserPropertiesModeType : std::int32_t
{
    Unknown = 0,
    TranslateAll = 1,
    TranslateNone = 2,
};

namespace imp
{

/// The settings for an import of IGES files.
class VRX_API OptionsIGES : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    EImportEntities importEntities() const { return m_importEntities; }
    void setImportEntities(EImportEntities entities) { m_importEntities = entities; }

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

private:
    friend struct Described<OptionsIGES>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EImportEntities m_importEntities{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
};

/// The settings for an import of STEP files.
class VRX_API OptionsSTEP : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    ELayerNameProcessingModeType layerNameProcessingMode() const { return m_layerNameProcessingMode; }
    void setLayerNameProcessingMode(ELayerNameProcessingModeType mode) { m_layerNameProcessingMode = mode; }

    EVisuPMIProcessingMode visuPMIProcessingMode() const { return m_visuPMIProcessingMode; }
    void setVisuPMIProcessingMode(EVisuPMIProcessingMode mode) { m_visuPMIProcessingMode = mode; }

private:
    friend struct Described<OptionsSTEP>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ELayerNameProcessingModeType m_layerNameProcessingMode{};
    EVisuPMIProcessingMode m_visuPMIProcessingMode{};
};

/// The settings for an import of JT files.
class VRX_API OptionsJT : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    EImportEdgesModeType importEdgesMode() const { return m_importEdgesMode; }
    void setImportEdgesMode(EImportEdgesModeType mode) { m_importEdgesMode = mode; }

    EUserPropertiesModeType userPropertiesMode() const { return m_userPropertiesMode; }
    void setUserPropertiesMode(EUserPropertiesModeType mode) { m_userPropertiesMode = mode; }

private:
    friend struct Described<OptionsJT>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EImportEdgesModeType m_importEdgesMode{};
    EUserPropertiesModeType m_userPropertiesMode{};
};

/// The settings for an import of Parasolid files.
class VRX_API OptionsParasolid : public FormatOptions
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    EFormatType formatType() const override;

    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType mode) { m_hiddenEntitiesMode = mode; }

private:
    friend struct Described<OptionsParasolid>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
};

} // namespace imp

} // namespace vrx
