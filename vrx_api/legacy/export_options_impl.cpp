#include "vrx_api/legacy/export_options_impl.h"

#include "vrx_api/command/options_fields.h"
#include "vrx_api/json/shapes.h"
#include "vrx_api/legacy/handle_entries.h"
#include "vrx_api/legacy/ins_units_table.h"

namespace vrx
{

static constexpr EnumName<EExportProductStructureMode> kProductStructureModes[] = {
    {EExportProductStructureMode::None, WIDE("none")},
    {EExportProductStructureMode::AsMechanicalComponents, WIDE("as_mechanical_components")},
};
static constexpr const auto& enumTable(EExportProductStructureMode)
{
    return kProductStructureModes;
}
static constexpr EExportProductStructureMode enumFallback(EExportProductStructureMode)
{
    return EExportProductStructureMode::None;
}

static constexpr EnumName<EExportHiddenPartsMode> kHiddenPartsModes[] = {
    {EExportHiddenPartsMode::ExportHide, WIDE("export_hide")},
    {EExportHiddenPartsMode::DoNotExport, WIDE("do_not_export")},
};
static constexpr const auto& enumTable(EExportHiddenPartsMode)
{
    return kHiddenPartsModes;
}
static constexpr EExportHiddenPartsMode enumFallback(EExportHiddenPartsMode)
{
    return EExportHiddenPartsMode::DoNotExport;
}

namespace
{

// Reading keeps the names that are there.
template <class Map>
struct ComponentNames
{
    Map& names;
};

constexpr Key kNameKey = WIDE("component_name");

template <class Value>
bool decode(const Value& value, const ComponentNames<std::map<std::uint64_t, wstring>>& field)
{
    if (!value.isArray())
    {
        return false;
    }
    readEntries<wstring>(value, kNameKey,
                         [&](std::uint64_t handle, const wstring& name) { field.names.emplace(handle, name); });
    return true;
}

template <class Out>
void encode(Out& out, const ComponentNames<const std::map<std::uint64_t, wstring>>& field)
{
    encodeEntries(out, field.names, kNameKey);
}

template <class Map>
void outline(Shape& shape, const ComponentNames<Map>&)
{
    outlineEntries(shape, kNameKey, wstring());
}

template <class Map>
bool isEmpty(const ComponentNames<Map>& field)
{
    return field.names.empty();
}

template <class Map>
ComponentNames<Map> componentNamesIn(Map& names)
{
    return {names};
}

} // namespace

template <class Self, class Fields>
void LegacyExportOptionsImpl::describe(Self& self, Fields& fields)
{
    describeFile(fields, self.m_file);
    describeTemporaryDwg(fields, self.m_temporaryDwg);
    fields.filled(WIDE("format_version"), self.m_formatVersion);
    fields.filled(WIDE("geometry_flags"), self.m_geometryFlags);
    fields.when(self.m_insUnitsScaling, WIDE("ins_units_scaling"), self.m_insUnitsScaling);
    fields.always(WIDE("ins_units_def_target"), self.m_insUnitsDefTarget);
    fields.always(WIDE("product_structure_mode"), self.m_productStructureMode);
    fields.always(WIDE("hidden_parts_mode"), self.m_hiddenPartsMode);
    fields.filled(WIDE("selection_set"), valid(self.m_selectionSet));
    fields.filled(WIDE("component_names"), componentNamesIn(self.m_componentNames));
    fields.filled(WIDE("hidden_components"), valid(self.m_hiddenComponents));
    fields.when(self.m_stepFormatVersion != kDefaultStepVersion, WIDE("step_format_version"), self.m_stepFormatVersion);
    fields.filled(WIDE("acis_format_version"), self.m_acisFormatVersion);
    fields.filled(WIDE("catiav4_format_version"), self.m_catiaV4FormatVersion);
    fields.filled(WIDE("catiav5_format_version"), self.m_catiaV5FormatVersion);
    fields.filled(WIDE("parasolid_format_version"), self.m_parasolidFormatVersion);
    fields.filled(WIDE("xcgm_format_version"), self.m_xcgmFormatVersion);
    fields.when(self.m_printDebugLog, WIDE("debug_log"), self.m_printDebugLog);
}
template struct Described<LegacyExportOptionsImpl>;

void LegacyExportOptionsImpl::readObject(const JsonValue& value)
{
    readOptions(*this, value);
}

void LegacyExportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
