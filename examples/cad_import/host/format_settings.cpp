#include "format_settings.h"

#include "mp/narrow.h"
#include "usage_error.h"
#include "vrx_api/json/json_value.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace
{

template <class Options>
std::shared_ptr<vrx::IFormatOptions> newOptions()
{
    return std::make_shared<Options>();
}

const FormatSettings* settingsFor(const std::string& file)
{
    std::string extension = std::filesystem::path(file).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    for (const FormatSettings& format : formatSettings())
    {
        for (const std::string_view known : format.extensions)
        {
            if (extension.size() == known.size() + 1 && extension.substr(1) == known)
            {
                return &format;
            }
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

template <class Items, class Text>
std::string list(const Items& items, Text text)
{
    std::string line;
    for (const auto& item : items)
    {
        line += (line.empty() ? "" : ", ") + std::string(text(item));
    }
    return line;
}

vrx::JsonValue text(std::string_view narrow, vrx::JsonAllocator& allocator)
{
    const mp::wstring wide = mp::toWide(narrow);
    return {wide.data(), static_cast<rapidjson::SizeType>(wide.size()), allocator};
}

// Sets the member of an object; the class that reads the object decides what it takes. It writes back what it took.
void set(vrx::IJsonObject& options, const Setting& setting, const std::string& value)
{
    vrx::JsonDocument document;
    options.writeObject(document, document.GetAllocator());
    const vrx::JsonValue name = text(setting.name, document.GetAllocator());
    vrx::JsonValue given = text(value, document.GetAllocator());
    document[name] = given;
    options.readObject(document);

    vrx::JsonDocument written;
    options.writeObject(written, written.GetAllocator());
    if (mp::toNarrow(written[name].GetString()) != value)
    {
        throw UsageError(std::string(setting.name) + " takes " +
                         list(setting.values, [](std::string_view possible) { return possible; }));
    }
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

std::shared_ptr<vrx::ImportOptions> importOptions(const std::string& file, const std::vector<GivenSetting>& given)
{
    std::shared_ptr<vrx::ImportOptions> options = vrx::Command::newImportOptions();
    options->setFile(mp::toWide(file));
    if (given.empty())
    {
        return options;
    }
    const FormatSettings* const format = settingsFor(file);
    if (format == nullptr)
    {
        throw UsageError("there are no settings for files like " + file + ", only for those of " +
                         list(formatSettings(), [](const FormatSettings& known) { return known.format; }));
    }
    const std::shared_ptr<vrx::IFormatOptions> ofFormat = format->newOptions();
    for (const auto& [name, value] : given)
    {
        const Setting* const setting = find(format->settings, name);
        if (setting == nullptr)
        {
            throw UsageError("there is no setting " + name + " for " + std::string(format->format) +
                             " files, there are " +
                             list(format->settings, [](const Setting& known) { return known.name; }));
        }
        set(*ofFormat, *setting, value);
    }
    options->setFormatOptions(ofFormat);
    return options;
}
