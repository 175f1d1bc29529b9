#pragma once

#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_format_options.h"

#include <string>

/// What an import is to bring, as its command says it; what the command leaves to the translator is decided here.
struct ImportSettings
{
    std::string file; // UTF-8

    // of STEP files
    bool layers = true;
    bool pmi = true;
    bool drawnPmi = true;    // where there is PMI: its drawn annotations and saved views
    bool semanticPmi = true; // and its data

    // of IGES files
    vrx::ETranslateHiddenEntitiesModeType hidden = vrx::ETranslateHiddenEntitiesModeType::All; // never Unknown
    bool nonroots = false; // the entities that belong logically to others also by themselves

    // of the older interface; otherwise as here
    vrx::EProductStructureMode structure = vrx::EProductStructureMode::AsMechanicalComponents;
    vrx::EHiddenPartsMode hiddenParts = vrx::EHiddenPartsMode::ImportHide;
    vrx::EInsUnits units = vrx::EInsUnits::Unknown; // of a file that names none; when scaled, those to scale to
    bool scaled = false;
    std::string searchFolder; // for files that are not where they should be, in UTF-8; may be empty
    bool turnStep = false;    // the Y axis of a STEP file to Z
    vrx::EColorsMode colors = vrx::EColorsMode::Rgb;
    bool debugLog = false;      // the kernel's debug lines in the log
    bool componentMaps = false; // the names and materials of components by their handles
};

ImportSettings settingsOf(const vrx::ImportOptions& options);

/// Settings for the file's format count in a legacy command as they do in any other.
ImportSettings settingsOf(const vrx::LegacyImportOptions& options);
