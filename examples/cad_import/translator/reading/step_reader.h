#pragma once

#include "reading/cad_model.h"

class CadFile;
class ImportProgress;
struct ImportSettings;

bool beginsAsStep(const CadFile& file);

/// Reads a STEP file and transfers it to the model's document, which stays empty when nothing could be transferred.
/// Throws TranslationError with a message for the user.
void readStep(CadFile& file, const ImportSettings& settings, ImportProgress& progress, CadModel& model);
