#pragma once

#include "reading/cad_model.h"

class HostChannel;
class ImportProgress;
struct ImportSettings;

/// Reads and transfers a STEP file. Throws TranslationError with a message for the user.
CadModel readStep(const ImportSettings& settings, HostChannel& channel, ImportProgress& progress);
