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

    // of IGES files
    vrx::ETranslateHiddenEntitiesModeType hidden = vrx::ETranslateHiddenEntitiesModeType::All; // never Unknown
    bool nonroots = false; // the entities that belong logically to others also by themselves
};

ImportSettings settingsOf(const vrx::ImportOptions& options);
