#pragma once

#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_format_options.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The settings of an import that a user can give by their names on the wire.

/// One setting: its name, and the values that it takes.
struct Setting
{
    enum class EKind
    {
        Mode,
        Flag,
        Folder, // a folder under a key; `values` tells the form
    };

    std::string_view name;
    std::vector<std::string_view> values;
    EKind kind = EKind::Mode;
};

/// The settings of one format.
struct FormatSettings
{
    std::string_view format;
    std::vector<std::string_view> extensions; // in small letters
    std::shared_ptr<vrx::IFormatOptions> (*newOptions)();
    std::vector<Setting> settings;
};

const std::vector<FormatSettings>& formatSettings();

/// The settings of the older interface, for files of all formats.
const std::vector<Setting>& legacySettings();

/// A name and the value that a user gives it.
using GivenSetting = std::pair<std::string, std::string>;

/// The options for an import of a file. Throws UsageError, with a list of what there is, when the file's format has no
/// such setting, or the setting no such value.
std::shared_ptr<vrx::ImportOptions> importOptions(const std::string& file, const std::vector<GivenSetting>& given);

/// The same for the older interface, whose settings can be given beside those of the format. The temporary drawing is
/// a path that nobody else uses.
std::shared_ptr<vrx::LegacyImportOptions> legacyImportOptions(const std::string& file,
                                                              const std::vector<GivenSetting>& given);
