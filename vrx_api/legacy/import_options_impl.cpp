#include "vrx_api/legacy/import_options_impl.h"

#include "mp/narrow.h"
#include "vrx_api/command/options_fields.h"
#include "vrx_api/legacy/ins_units_table.h"

namespace vrx
{

static constexpr EnumName<EPmiMode> kPmiModes[] = {
    {EPmiMode::None, WIDE("none")},
    {EPmiMode::Graphical, WIDE("graphical")},
    {EPmiMode::Semantic, WIDE("semantic")},
};
static constexpr const auto& enumTable(EPmiMode)
{
    return kPmiModes;
}
static constexpr EPmiMode enumFallback(EPmiMode)
{
    return EPmiMode::None;
}

static constexpr EnumName<EProductStructureMode> kProductStructureModes[] = {
    {EProductStructureMode::None, WIDE("none")},
    {EProductStructureMode::AsBlocks, WIDE("as_blocks")},
    {EProductStructureMode::AsMechanicalComponents, WIDE("as_mechanical_components")},
};
static constexpr const auto& enumTable(EProductStructureMode)
{
    return kProductStructureModes;
}
static constexpr EProductStructureMode enumFallback(EProductStructureMode)
{
    return EProductStructureMode::None;
}

static constexpr EnumName<EColorsMode> kColorsModes[] = {
    {EColorsMode::Rgb, WIDE("rgb")},
    {EColorsMode::MatchingIndex, WIDE("matching_index")},
    {EColorsMode::NearestIndex, WIDE("nearest_index")},
};
static constexpr const auto& enumTable(EColorsMode)
{
    return kColorsModes;
}
static constexpr EColorsMode enumFallback(EColorsMode)
{
    return EColorsMode::Rgb;
}

static constexpr EnumName<EHiddenPartsMode> kHiddenPartsModes[] = {
    {EHiddenPartsMode::ImportHide, WIDE("import_hide")},
    {EHiddenPartsMode::ImportShow, WIDE("import_show")},
    {EHiddenPartsMode::DoNotImport, WIDE("do_not_import")},
};
static constexpr const auto& enumTable(EHiddenPartsMode)
{
    return kHiddenPartsModes;
}
static constexpr EHiddenPartsMode enumFallback(EHiddenPartsMode)
{
    return EHiddenPartsMode::DoNotImport;
}

namespace
{

bool shown(bool flag)
{
    return flag;
}

template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
mp::Narrow shown(E mode)
{
    return {enumName(mode)};
}

mp::Narrow shown(const wstring& text)
{
    return {text};
}

// What is read is logged setting by setting, whether or not the key of a setting was there.
template <class Fields, class T>
void line(Fields& fields, const char* name, const T& field)
{
    logReading(fields, "LegacyImportOptions.", name, " = ", shown(field));
}

template <class Fields, class E>
void mode(Fields& fields, Key key, const char* name, E& field)
{
    fields.always(key, field);
    line(fields, name, field);
}

template <class Fields, class Flag>
void flag(Fields& fields, Key key, const char* name, Flag& field)
{
    fields.when(field, key, field);
    line(fields, name, field);
}

// An object of one text per key. Reading keeps the texts that are there.
template <class Map>
struct SearchPaths
{
    Map& paths;
};

template <class Map>
SearchPaths<Map> searchPaths(Map& paths)
{
    return {paths};
}

template <class Value>
bool decode(const Value& value, const SearchPaths<std::map<wstring, wstring>>& field)
{
    if (!value.isObject())
    {
        return false;
    }
    for (const auto member : value.members())
    {
        if (member.name.isString() && member.value.isString())
        {
            const wstring_view key = textOf(member.name);
            const wstring_view path = textOf(member.value);
            kolt::log(kolt::kDebug, "LegacyImportOptions.AlternateSearchPaths for ", mp::Narrow{key}, " = ",
                      mp::Narrow{path});
            field.paths.emplace(key, path);
        }
    }
    return true;
}

template <class Out>
void encode(Out& out, const SearchPaths<const std::map<wstring, wstring>>& field)
{
    const auto object = out.beginObject();
    for (const auto& [key, path] : field.paths)
    {
        out.text(key);
        out.text(path);
    }
    out.endObject(object);
}

template <class Map>
void outline(Shape& shape, const SearchPaths<Map>&)
{
    shape.kind = EShape::Map;
    outline(shape.parts.emplace_back(), wstring());
}

template <class Map>
bool isEmpty(const SearchPaths<Map>& field)
{
    return field.paths.empty();
}

} // namespace

template <class Self, class Fields>
void LegacyImportOptionsImpl::describe(Self& self, Fields& fields)
{
    describeFile(fields, self.m_file);
    line(fields, "file", self.m_file);
    describeTemporaryDwg(fields, self.m_temporaryDwg);
    line(fields, "temporaryDwg", self.m_temporaryDwg);
    fields.filled(WIDE("format_options"), forFile(self.m_file, self.m_formatOptions));
    flag(fields, WIDE("use_interop_mp"), "useIopMP", self.m_useIopMP);
    mode(fields, WIDE("pmi_mode"), "pmiMode", self.m_pmiMode);
    mode(fields, WIDE("product_structure_mode"), "productStructureMode", self.m_productStructureMode);
    mode(fields, WIDE("colors_mode"), "colorsMode", self.m_colorsMode);
    mode(fields, WIDE("hidden_parts_mode"), "hiddenPartsMode", self.m_hiddenPartsMode);
    mode(fields, WIDE("ins_units_def_source"), "insUnitsDefSource", self.m_insUnitsDefSource);
    flag(fields, WIDE("ins_units_scaling"), "insUnitsScaling", self.m_insUnitsScaling);
    flag(fields, WIDE("import_acis_with_draftwell"), "importAcisWithDraftwell", self.m_importAcisWithDraftwell);
    flag(fields, WIDE("step_rotate_yz"), "StepRotateYZ", self.m_stepRotateYZ);
    flag(fields, WIDE("solidworks_rotate_yz"), "SolidWorksRotateYZ", self.m_solidWorksRotateYZ);
    fields.filled(WIDE("alternate_search_paths"), searchPaths(self.m_alternateSearchPaths));
    flag(fields, WIDE("debug_log"), "PrintDebugLog", self.m_printDebugLog);
}
template struct Described<LegacyImportOptionsImpl>;

void LegacyImportOptionsImpl::readObject(const JsonValue& value)
{
    readOptions(*this, value);
}

void LegacyImportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

bool LegacyImportOptionsImpl::hasAlternateSearchPath(const wstring& key) const
{
    return m_alternateSearchPaths.count(key) != 0;
}

const wstring& LegacyImportOptionsImpl::alternateSearchPath(const wstring& key) const
{
    static const wstring none;
    const auto found = m_alternateSearchPaths.find(key);
    return found != m_alternateSearchPaths.end() ? found->second : none;
}

void LegacyImportOptionsImpl::setAlternateSearchPath(const wstring& key, const wstring& path)
{
    if (!path.empty())
    {
        m_alternateSearchPaths[key] = path;
    }
}

} // namespace vrx
