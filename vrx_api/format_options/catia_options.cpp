#include "vrx_api/format_options/catia_options.h"

#include "vrx_api/format_options/option_fields.h"
#include "vrx_api/format_options/shared_mode_tables.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

static constexpr const auto& enumTable(EProcessInWorkObjectModeType)
{
    return kTrueOrFalse<EProcessInWorkObjectModeType>;
}

static constexpr EnumName<ENameProcessingModeType> kNameModes[] = {
    {ENameProcessingModeType::Unknown, WIDE("unknown")},
    {ENameProcessingModeType::ShortNames, WIDE("short_names")},
    {ENameProcessingModeType::LongNames, WIDE("long_names")},
};
static constexpr const auto& enumTable(ENameProcessingModeType)
{
    return kNameModes;
}

static constexpr const auto& enumTable(EAssemblyUnfoldedViewMode)
{
    return kTrueOrFalse<EAssemblyUnfoldedViewMode>;
}

static constexpr EnumName<EImportMfgProcessingModeType> kMfgProcessingModes[] = {
    {EImportMfgProcessingModeType::Unknown, WIDE("unknown")},
    {EImportMfgProcessingModeType::FeaturesOnly, WIDE("features_only")},
    {EImportMfgProcessingModeType::ResultsOnly, WIDE("results_only")},
};
static constexpr const auto& enumTable(EImportMfgProcessingModeType)
{
    return kMfgProcessingModes;
}

static constexpr const auto& enumTable(EProcessMfgDataModeType)
{
    return kAllOrNone<EProcessMfgDataModeType>;
}

static constexpr EnumName<EDocumentDelayLoadingMode> kDelayLoadingModes[] = {
    {EDocumentDelayLoadingMode::None, WIDE("none")},
    {EDocumentDelayLoadingMode::Part, WIDE("part")},
};
static constexpr const auto& enumTable(EDocumentDelayLoadingMode)
{
    return kDelayLoadingModes;
}

template <class Self, class Fields>
void imp::OptionsCatiaV4::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("import_entities"), self.m_importEntities);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
    fields.always(WIDE("layer_filter"), self.m_layerFilter);
}
template struct Described<imp::OptionsCatiaV4>;

void imp::OptionsCatiaV4::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsCatiaV4");
}

void imp::OptionsCatiaV4::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsCatiaV4::formatType() const
{
    return EFormatType::CatiaV4;
}

template <class Self, class Fields>
void imp::OptionsCatiaV5::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("import_visualization"), self.m_importVisualization);
    fields.always(WIDE("import_root_visualization"), self.m_importRootVisualization);
    fields.always(WIDE("import_preview_graphics"), self.m_importPreviewGraphics);
    fields.always(WIDE("in_work_object_mode"), self.m_processInWorkObject);
    fields.always(WIDE("name_processing_mode"), self.m_nameProcessingMode);
    fields.always(WIDE("assembly_unfolded_view_mode"), self.m_assemblyUnfoldedViewMode);
    fields.always(WIDE("mfg_processing_mode"), self.m_mfgProcessingMode);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
    fields.always(WIDE("suppressed_entities_mode"), self.m_suppressedEntitiesMode);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
    fields.always(WIDE("mfg_data_mode"), self.m_processMfgDataMode);
    fields.always(WIDE("doc_delay_loading_mode"), self.m_documentDelayLoadingMode);
    fields.filled(WIDE("pname_modes"), valid(self.m_persistentNameModes));
}
template struct Described<imp::OptionsCatiaV5>;

void imp::OptionsCatiaV5::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsCatiaV5");
}

void imp::OptionsCatiaV5::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsCatiaV5::formatType() const
{
    return EFormatType::CatiaV5;
}

template <class Self, class Fields>
void imp::OptionsCatiaV5Drawing::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
}
template struct Described<imp::OptionsCatiaV5Drawing>;

void imp::OptionsCatiaV5Drawing::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsCatiaV5Drawing");
}

void imp::OptionsCatiaV5Drawing::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsCatiaV5Drawing::formatType() const
{
    return EFormatType::CatiaV5Drawing;
}

template <class Self, class Fields>
void imp::Options3DXML::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
}
template struct Described<imp::Options3DXML>;

void imp::Options3DXML::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "Options3DXML");
}

void imp::Options3DXML::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::Options3DXML::formatType() const
{
    return EFormatType::XML3D;
}

template <class Self, class Fields>
void imp::OptionsXCGM::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
}
template struct Described<imp::OptionsXCGM>;

void imp::OptionsXCGM::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsXCGM");
}

void imp::OptionsXCGM::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsXCGM::formatType() const
{
    return EFormatType::XCGM;
}

} // namespace vrx
