#pragma once

#include "reading/cad_model.h"

namespace vrx::bridge
{
class TranslatorChannel;
}

class ImportProgress;
struct ImportSettings;

/// Reads and transfers a file of any format that the translator knows. Throws TranslationError with a message for the
/// user.
CadModel readModel(const ImportSettings& settings, vrx::bridge::TranslatorChannel& channel, ImportProgress& progress);
