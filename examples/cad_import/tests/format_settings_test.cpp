#include "host/format_settings.h"
#include "host/usage_error.h"
#include "mp/narrow.h"
#include "vrx_api/json/json_value.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>

namespace
{

using testing::HasSubstr;
using testing::Throws;
using testing::ThrowsMessage;

// The members of an object that are texts.
std::map<std::string, std::string> textsOf(const vrx::IJsonObject& object)
{
    vrx::JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    std::map<std::string, std::string> texts;
    for (const auto& member : document.GetObject())
    {
        if (member.value.IsString())
        {
            texts[mp::toNarrow(member.name.GetString())] = mp::toNarrow(member.value.GetString());
        }
    }
    return texts;
}

std::set<std::string> namesOf(const std::vector<Setting>& settings)
{
    std::set<std::string> names;
    for (const Setting& setting : settings)
    {
        names.emplace(setting.name);
    }
    return names;
}

TEST(FormatSettings, AreThoseOfTheLibrary)
{
    for (const FormatSettings& format : formatSettings())
    {
        std::set<std::string> keys;
        for (const auto& [key, value] : textsOf(*format.newOptions()))
        {
            keys.insert(key);
        }
        EXPECT_EQ(keys.erase("operation_type") + keys.erase("format_type"), 2U);
        EXPECT_EQ(keys, namesOf(format.settings)) << format.format;
    }
}

TEST(FormatSettings, ReachTheOptionsWithEachOfTheirValues)
{
    for (const FormatSettings& format : formatSettings())
    {
        const std::string file = "folder/a." + std::string(format.extensions.front());
        for (const Setting& setting : format.settings)
        {
            const std::string name(setting.name);
            for (const std::string_view value : setting.values)
            {
                const auto options = importOptions(file, {{name, std::string(value)}});
                EXPECT_EQ(textsOf(*options->formatOptions(format.newOptions()->formatType())).at(name), value);
            }
            EXPECT_THAT(
                [&] {
                    importOptions(file, {{name, "some"}});
                },
                ThrowsMessage<UsageError>(HasSubstr(std::string(setting.values.back()))));
        }
        EXPECT_THAT(
            [&] {
                importOptions(file, {{"format_type", "JT"}});
            },
            ThrowsMessage<UsageError>(HasSubstr(std::string(format.settings.back().name))));
    }
    EXPECT_THAT([] { importOptions("step", {{"visu_pmi_mode", "all"}}); }, Throws<UsageError>());
}

// Each number of an enumeration travels under a name that is one of the setting's values.
template <class Options, class Enumeration>
void expectAllValues(const std::vector<Setting>& settings, const std::string& key, Options& options,
                     void (Options::*set)(Enumeration))
{
    std::set<std::string> names;
    for (int number = 0; number < 20; ++number)
    {
        (options.*set)(static_cast<Enumeration>(number));
        names.insert(textsOf(options).at(key));
    }
    const auto setting =
        std::find_if(settings.begin(), settings.end(), [&key](const Setting& one) { return one.name == key; });
    ASSERT_NE(setting, settings.end()) << key;
    EXPECT_EQ(names, std::set<std::string>(setting->values.begin(), setting->values.end())) << key;
}

TEST(FormatSettings, HaveAllValues)
{
    vrx::imp::OptionsSTEP step;
    const std::vector<Setting>& ofStep = formatSettings().at(0).settings;
    expectAllValues(ofStep, "layer_name_mode", step, &vrx::imp::OptionsSTEP::setLayerNameProcessingMode);
    expectAllValues(ofStep, "visu_pmi_mode", step, &vrx::imp::OptionsSTEP::setVisuPMIProcessingMode);
    vrx::imp::OptionsIGES iges;
    const std::vector<Setting>& ofIges = formatSettings().at(1).settings;
    expectAllValues(ofIges, "import_entities", iges, &vrx::imp::OptionsIGES::setImportEntities);
    expectAllValues(ofIges, "hidden_entities_mode", iges, &vrx::imp::OptionsIGES::setHiddenEntitiesMode);
}

TEST(LegacySettings, AreThoseOfTheLibraryWithEachOfTheirValues)
{
    std::set<std::string> modes;
    for (const Setting& setting : legacySettings())
    {
        const std::string name(setting.name);
        if (setting.kind == Setting::EKind::Mode)
        {
            modes.insert(name);
            for (const std::string_view value : setting.values)
            {
                EXPECT_EQ(textsOf(*legacyImportOptions("a.step", {{name, std::string(value)}})).at(name), value);
            }
        }
        else if (setting.kind == Setting::EKind::Flag)
        {
            vrx::JsonDocument document;
            legacyImportOptions("a.step", {{name, "true"}})->writeObject(document, document.GetAllocator());
            ASSERT_TRUE(document.HasMember(mp::toWide(name).c_str())) << name;
            EXPECT_TRUE(document[mp::toWide(name).c_str()].IsTrue());
            legacyImportOptions("a.step", {{name, "true"}, {name, "false"}})
                ->writeObject(document, document.GetAllocator());
            EXPECT_FALSE(document.HasMember(mp::toWide(name).c_str())) << name;
        }
        EXPECT_THAT(
            [&] {
                legacyImportOptions("a.step", {{name, "some"}});
            },
            ThrowsMessage<UsageError>(HasSubstr(std::string(setting.values.back()))));
    }
    std::map<std::string, std::string> texts = textsOf(*legacyImportOptions("a.step", {}));
    EXPECT_EQ(texts.erase("file") + texts.erase("temporary_dwg"), 2U);
    for (const auto& [key, value] : texts)
    {
        EXPECT_EQ(modes.erase(key), 1U) << key;
    }
    EXPECT_TRUE(modes.empty());
}

TEST(LegacySettings, HaveAllValues)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    const std::vector<Setting>& all = legacySettings();
    using Options = vrx::LegacyImportOptions;
    expectAllValues(all, "pmi_mode", *options, &Options::setPmiMode);
    expectAllValues(all, "product_structure_mode", *options, &Options::setProductStructureMode);
    expectAllValues(all, "colors_mode", *options, &Options::setColorsMode);
    expectAllValues(all, "hidden_parts_mode", *options, &Options::setHiddenPartsMode);
    expectAllValues(all, "ins_units_def_source", *options, &Options::setInsUnitsDefSource);
}

TEST(LegacySettings, StandBesideThoseOfTheFormat)
{
    const auto options = legacyImportOptions(
        "a.igs", {{"alternate_search_paths", "files=/a=b"}, {"import_entities", "root_only"}, {"pmi_mode", "none"}});
    EXPECT_EQ(options->alternateSearchPath(WIDE("files")), WIDE("/a=b"));
    EXPECT_EQ(options->pmiMode(), vrx::EPmiMode::None);
    EXPECT_NE(options->formatOptions(vrx::EFormatType::IGES), nullptr);
    EXPECT_THAT(
        [] {
            legacyImportOptions("a.igs", {{"visu_pmi_mode", "all"}});
        },
        ThrowsMessage<UsageError>(HasSubstr("hidden_entities_mode, use_interop_mp")));
    EXPECT_THAT([] { importOptions("a.step", {{"pmi_mode", "none"}}); }, Throws<UsageError>());
    for (const std::string paths : {"files", "files=", "=/a", "parts=/a"})
    {
        EXPECT_THAT(
            [&] {
                legacyImportOptions("a.igs", {{"alternate_search_paths", paths}});
            },
            Throws<UsageError>())
            << paths;
    }
}

} // namespace
