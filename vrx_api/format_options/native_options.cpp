#include "vrx_api/format_options/native_options.h"

#include "vrx_api/format_options/option_fields.h"
#include "vrx_api/format_options/shared_mode_tables.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

static constexpr EnumName<EImportMfgHolesOnSheetsMode> kHolesOnSheetsModes[] = {
    {EImportMfgHolesOnSheetsMode::Unknown, WIDE("unknown")},
    {EImportMfgHolesOnSheetsMode::Ignore, WIDE("ignore")},
    {EImportMfgHolesOnSheetsMode::Include, WIDE("include")},
};
static constexpr const auto& enumTable(EImportMfgHolesOnSheetsMode)
{
    return kHolesOnSheetsModes;
}

static constexpr const auto& enumTable(ETranslateDrivingDimensionsModeType)
{
    return kTrueOrFalse<ETranslateDrivingDimensionsModeType>;
}

static constexpr const auto& enumTable(ETranslateConstructionGeometriesModeType)
{
    return kTrueOrFalse<ETranslateConstructionGeometriesModeType>;
}

static constexpr const auto& enumTable(ETranslateReferenceGeometryMode)
{
    return kTrueOrFalse<ETranslateReferenceGeometryMode>;
}

static constexpr EnumName<EActiveStateProcessingModeType> kActiveStateModes[] = {
    {EActiveStateProcessingModeType::Unknown, WIDE("unknown")},
    {EActiveStateProcessingModeType::ActiveOnly, WIDE("active_only")},
    {EActiveStateProcessingModeType::ActiveAndInactive, WIDE("active_and_inactive")},
};
static constexpr const auto& enumTable(EActiveStateProcessingModeType)
{
    return kActiveStateModes;
}

template <class Self, class Fields>
void imp::OptionsCreo::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("search_paths"), self.m_alternateSearchPaths);
    fields.always(WIDE("configuration_name"), self.m_importConfiguration);
    fields.always(WIDE("holes_on_sheets_mode"), self.m_mfgHolesOnSheetsMode);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
    fields.always(WIDE("suppressed_entities_mode"), self.m_suppressedEntitiesMode);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
    fields.always(WIDE("driving_dimensions_type"), self.m_translateDrivingDimensionsMode);
    fields.always(WIDE("construction_geom_mode"), self.m_translateConstructionGeometriesMode);
    fields.always(WIDE("reference_geom_mode"), self.m_translateReferenceGeometryMode);
    fields.filled(WIDE("pname_modes"), valid(self.m_persistentNameModes));
}
template struct Described<imp::OptionsCreo>;

void imp::OptionsCreo::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsCreo");
}

void imp::OptionsCreo::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsCreo::formatType() const
{
    return EFormatType::Creo;
}

template <class Self, class Fields>
void imp::OptionsNX::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("search_paths"), self.m_assemblySearchPaths);
    fields.always(WIDE("assembly_path_pref"), self.m_assemblyPathPreference);
    fields.always(WIDE("configuration_name"), self.m_importConfiguration);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
    fields.always(WIDE("suppressed_entities_mode"), self.m_suppressedEntitiesMode);
    fields.always(WIDE("visu_pmi_mode"), self.m_visuPMIProcessingMode);
    fields.filled(WIDE("pname_modes"), valid(self.m_persistentNameModes));
}
template struct Described<imp::OptionsNX>;

void imp::OptionsNX::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsNX");
}

void imp::OptionsNX::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsNX::formatType() const
{
    return EFormatType::NX;
}

template <class Self, class Fields>
void imp::OptionsInventor::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("search_paths"), self.m_assemblySearchPaths);
    fields.always(WIDE("assembly_path_pref"), self.m_assemblyPathPreference);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
    fields.always(WIDE("suppressed_entities_mode"), self.m_suppressedEntitiesMode);
    fields.always(WIDE("active_state_mode"), self.m_activeStateProcessingMode);
    fields.filled(WIDE("pname_modes"), valid(self.m_persistentNameModes));
}
template struct Described<imp::OptionsInventor>;

void imp::OptionsInventor::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsInventor");
}

void imp::OptionsInventor::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsInventor::formatType() const
{
    return EFormatType::Inventor;
}

template <class Self, class Fields>
void imp::OptionsSolidEdge::describe(Self& self, Fields& fields)
{
    describeBase<IFormatOptions>(self, fields);
    fields.always(WIDE("search_paths"), self.m_assemblySearchPaths);
    fields.always(WIDE("assembly_path_pref"), self.m_assemblyPathPreference);
    fields.always(WIDE("hidden_entities_mode"), self.m_hiddenEntitiesMode);
    fields.filled(WIDE("pname_modes"), valid(self.m_persistentNameModes));
}
template struct Described<imp::OptionsSolidEdge>;

void imp::OptionsSolidEdge::readObject(const JsonValue& value)
{
    readOptionFields(*this, value, "OptionsSolidEdge");
}

void imp::OptionsSolidEdge::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

EFormatType imp::OptionsSolidEdge::formatType() const
{
    return EFormatType::SolidEdge;
}

} // namespace vrx
