#pragma once

#include "reading/cad_model.h"

class CadFile;
class ImportProgress;
struct ImportSettings;

bool beginsAsIges(const CadFile& file);

/// Reads an IGES file and transfers it to the model's document, which stays empty when nothing could be transferred.
/// Throws TranslationError with a message for the user.
void readIges(const CadFile& file, const ImportSettings& settings, ImportProgress& progress, CadModel& model);
