#include "host/format_settings.h"
#include "host/usage_error.h"
#include "mp/narrow.h"
#include "vrx_api/json/json_value.h"

#include <gmock/gmock.h>

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

// Each number of an enumeration travels under a name that the table has.
template <class Options, class Enumeration>
void expectNames(const std::string& key, void (Options::*set)(Enumeration))
{
    Options options;
    std::set<std::string> names;
    for (int number = 0; number < 20; ++number)
    {
        (options.*set)(static_cast<Enumeration>(number));
        names.insert(textsOf(options).at(key));
    }
    for (const FormatSettings& format : formatSettings())
    {
        for (const Setting& setting : format.settings)
        {
            if (format.newOptions()->formatType() == options.formatType() && setting.name == key)
            {
                EXPECT_EQ(names, std::set<std::string>(setting.values.begin(), setting.values.end())) << key;
                return;
            }
        }
    }
    FAIL() << "no setting " << key;
}

TEST(FormatSettings, HaveAllValues)
{
    expectNames("layer_name_mode", &vrx::imp::OptionsSTEP::setLayerNameProcessingMode);
    expectNames("visu_pmi_mode", &vrx::imp::OptionsSTEP::setVisuPMIProcessingMode);
    expectNames("import_entities", &vrx::imp::OptionsIGES::setImportEntities);
    expectNames("hidden_entities_mode", &vrx::imp::OptionsIGES::setHiddenEntitiesMode);
}

} // namespace
