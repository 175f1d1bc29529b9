#include "format_settings.h"

#include "common/file_extension.h"
#include "common/import_conventions.h"
#include "mp/narrow.h"
#include "usage_error.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <algorithm>
#include <filesystem>

namespace
{

template <class Options>
std::shared_ptr<vrx::IFormatOptions> newOptions()
{
    return std::make_shared<Options>();
}

bool contains(const std::vector<std::string_view>& texts, std::string_view text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

const FormatSettings* settingsFor(const std::string& file)
{
    const std::string extension = fileExtension(file);
    for (const FormatSettings& format : formatSettings())
    {
        if (contains(format.extensions, extension))
        {
            return &format;
        }
    }
    return nullptr;
}

const Setting* find(const std::vector<Setting>& settings, const std::string& name)
{
    const auto found = std::find_if(settings.begin(), settings.end(),
                                    [&name](const Setting& setting) { return setting.name == name; });
    return found != settings.end() ? &*found : nullptr;
}

template <class Item, class Text>
std::string listed(const std::vector<Item>& items, Text text)
{
    std::string list;
    for (const Item& item : items)
    {
        list += (list.empty() ? "" : ", ") + std::string(text(item));
    }
    return list;
}

UsageError wrongValue(const Setting& setting)
{
    return UsageError(std::string(setting.name) + " takes " +
                      listed(setting.values, [](std::string_view value) { return value; }));
}

vrx::JsonValue text(std::string_view narrow, vrx::JsonAllocator& allocator)
{
    const mp::wstring wide = mp::toWide(narrow);
    return {wide.data(), static_cast<rapidjson::SizeType>(wide.size()), allocator};
}

// Sets one member of an object and leaves the others.
void set(vrx::IJsonObject& options, const Setting& setting, const std::string& value)
{
    if (!contains(setting.values, value))
    {
        throw wrongValue(setting);
    }
    vrx::JsonDocument document;
    vrx::JsonAllocator& allocator = document.GetAllocator();
    options.writeObject(document, allocator);
    vrx::JsonValue name = text(setting.name, allocator);
    vrx::JsonValue member =
        setting.kind == Setting::EKind::Flag ? vrx::JsonValue(value == "true") : text(value, allocator);
    document.RemoveMember(name);
    document.AddMember(name, member, allocator);
    options.readObject(document);
}

void setLegacy(vrx::LegacyImportOptions& options, const Setting& setting, const std::string& value)
{
    if (setting.kind != Setting::EKind::Folder)
    {
        set(options, setting, value);
        return;
    }
    const std::size_t sign = value.find('=');
    const mp::wstring key = mp::toWide(value.substr(0, sign));
    if (key != import_conventions::kFiles || sign >= value.size() - 1)
    {
        throw wrongValue(setting);
    }
    options.setAlternateSearchPath(key, mp::toWide(value.substr(sign + 1)));
}

// `legacy` holds the other settings that could have been given.
void setFormat(vrx::ImportOptions& options, const std::string& file, const std::vector<GivenSetting>& given,
               const std::vector<Setting>& legacy)
{
    if (given.empty())
    {
        return;
    }
    const FormatSettings* const format = settingsFor(file);
    if (format == nullptr && legacy.empty())
    {
        throw UsageError("there are no settings for files like " + file + ", only for those of " +
                         listed(formatSettings(), [](const FormatSettings& known) { return known.format; }));
    }
    std::vector<Setting> all = format != nullptr ? format->settings : std::vector<Setting>();
    all.insert(all.end(), legacy.begin(), legacy.end());
    const std::string possible =
        " for files like " + file + ", there are " + listed(all, [](const Setting& known) { return known.name; });
    const auto ofFormat = format != nullptr ? format->newOptions() : nullptr;
    for (const auto& [name, value] : given)
    {
        const Setting* const setting = format != nullptr ? find(format->settings, name) : nullptr;
        if (setting == nullptr)
        {
            throw UsageError(std::string("there is no setting ").append(name).append(possible));
        }
        set(*ofFormat, *setting, value);
    }
    options.setFormatOptions(ofFormat);
}

} // namespace

const std::vector<FormatSettings>& formatSettings()
{
    static const std::vector<FormatSettings> kFormats = {
        {"STEP",
         {"stp", "step", "p21"},
         newOptions<vrx::imp::OptionsSTEP>,
         {{"layer_name_mode", {"unknown", "asm_rep", "saved_visu_rep"}},
          {"visu_pmi_mode", {"unknown", "all", "none"}}}},
        {"IGES",
         {"igs", "iges"},
         newOptions<vrx::imp::OptionsIGES>,
         {{"import_entities", {"unknown", "root_only", "root_and_nonroot"}},
          {"hidden_entities_mode", {"unknown", "all", "none", "only_with_visible_links"}}}},
    };
    return kFormats;
}

const std::vector<Setting>& legacySettings()
{
    using EKind = Setting::EKind;
    static const std::vector<Setting> kSettings = {
        {"use_interop_mp", {"true", "false"}, EKind::Flag},
        {"pmi_mode", {"none", "graphical", "semantic"}},
        {"product_structure_mode", {"none", "as_blocks", "as_mechanical_components"}},
        {"colors_mode", {"rgb", "matching_index", "nearest_index"}},
        {"hidden_parts_mode", {"import_hide", "import_show", "do_not_import"}},
        {"ins_units_def_source",
         {"unknown", "inches", "feet", "miles", "millimeters", "centimeters", "meters", "kilometers", "microinches",
          "nanometers", "microns", "decimeters"}},
        {"ins_units_scaling", {"true", "false"}, EKind::Flag},
        {"import_acis_with_draftwell", {"true", "false"}, EKind::Flag},
        {"step_rotate_yz", {"true", "false"}, EKind::Flag},
        {"solidworks_rotate_yz", {"true", "false"}, EKind::Flag},
        {"alternate_search_paths", {"files=FOLDER"}, EKind::Folder},
        {"debug_log", {"true", "false"}, EKind::Flag},
    };
    return kSettings;
}

std::shared_ptr<vrx::ImportOptions> importOptions(const std::string& file, const std::vector<GivenSetting>& given)
{
    std::shared_ptr<vrx::ImportOptions> options = vrx::Command::newImportOptions();
    options->setFile(mp::toWide(file));
    setFormat(*options, file, given, {});
    return options;
}

std::shared_ptr<vrx::LegacyImportOptions> legacyImportOptions(const std::string& file,
                                                              const std::vector<GivenSetting>& given)
{
    std::shared_ptr<vrx::LegacyImportOptions> options = vrx::Command::newLegacyImportOptions();
    options->setFile(mp::toWide(file));
    const std::string drawing = mp::toNarrow(vrx::IExchangeObject::generateUUID()) + ".dwg";
    options->setTemporaryDwg(mp::toWide((std::filesystem::temp_directory_path() / drawing).string()));
    std::vector<GivenSetting> ofFormat;
    for (const auto& [name, value] : given)
    {
        if (const Setting* const setting = find(legacySettings(), name))
        {
            setLegacy(*options, *setting, value);
        }
        else
        {
            ofFormat.emplace_back(name, value);
        }
    }
    setFormat(*options, file, ofFormat, legacySettings());
    return options;
}
