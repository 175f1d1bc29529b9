#include "reading/import_settings.h"

#include "common/import_conventions.h"
#include "mp/narrow.h"
#include "vrx_api/vrx_api_format_options.h"

namespace
{

void take(const vrx::imp::OptionsSTEP& step, ImportSettings& settings)
{
    settings.layers = step.layerNameProcessingMode() != vrx::ELayerNameProcessingModeType::SavedVisuRep;
    settings.pmi = step.visuPMIProcessingMode() != vrx::EVisuPMIProcessingMode::None;
}

} // namespace

ImportSettings settingsOf(const vrx::ImportOptions& options)
{
    ImportSettings settings;
    settings.file = mp::toNarrow(options.file());
    const auto step = options.formatOptions(vrx::EFormatType::STEP);
    if (const auto* const ofStep = dynamic_cast<const vrx::imp::OptionsSTEP*>(step.get()))
    {
        take(*ofStep, settings);
    }
    return settings;
}

ImportSettings settingsOf(const vrx::LegacyImportOptions& options)
{
    ImportSettings settings = settingsOf(static_cast<const vrx::ImportOptions&>(options));
    settings.pmi = settings.pmi && options.pmiMode() != vrx::EPmiMode::None;
    settings.drawnPmi = options.pmiMode() == vrx::EPmiMode::Graphical;
    settings.structure = options.productStructureMode();
    settings.hiddenParts = options.hiddenPartsMode();
    settings.searchFolder = mp::toNarrow(options.alternateSearchPath(import_conventions::kFiles));
    settings.units = options.insUnitsDefSource();
    settings.scaled = options.insUnitsScaling();
    settings.turnStep = options.stepRotateYZ();
    settings.paletteColors = options.colorsMode() == vrx::EColorsMode::NearestIndex;
    settings.debugLog = options.printDebugLog();
    settings.componentMaps = settings.structure == vrx::EProductStructureMode::AsMechanicalComponents;
    return settings;
}
