#include "reading/import_settings.h"

#include "common/import_conventions.h"
#include "mp/narrow.h"

namespace
{

void take(const vrx::imp::OptionsSTEP& step, ImportSettings& settings)
{
    settings.layers = step.layerNameProcessingMode() != vrx::ELayerNameProcessingModeType::SavedVisuRep;
    settings.pmi = step.visuPMIProcessingMode() != vrx::EVisuPMIProcessingMode::None;
}

void take(const vrx::imp::OptionsIGES& iges, ImportSettings& settings)
{
    if (iges.hiddenEntitiesMode() != vrx::ETranslateHiddenEntitiesModeType::Unknown)
    {
        settings.hidden = iges.hiddenEntitiesMode();
    }
    settings.nonroots = iges.importEntities() == vrx::EImportEntities::RootAndNonroot;
}

template <class Options>
void takeFormat(const vrx::ImportOptions& options, vrx::EFormatType format, ImportSettings& settings)
{
    const auto found = options.formatOptions(format);
    if (const auto* const ofFormat = dynamic_cast<const Options*>(found.get()))
    {
        take(*ofFormat, settings);
    }
}

} // namespace

ImportSettings settingsOf(const vrx::ImportOptions& options)
{
    ImportSettings settings;
    settings.file = mp::toNarrow(options.file());
    takeFormat<vrx::imp::OptionsSTEP>(options, vrx::EFormatType::STEP, settings);
    takeFormat<vrx::imp::OptionsIGES>(options, vrx::EFormatType::IGES, settings);
    return settings;
}

ImportSettings settingsOf(const vrx::LegacyImportOptions& options)
{
    ImportSettings settings = settingsOf(static_cast<const vrx::ImportOptions&>(options));
    settings.pmi = settings.pmi && options.pmiMode() != vrx::EPmiMode::None;
    settings.drawnPmi = options.pmiMode() == vrx::EPmiMode::Graphical;
    settings.semanticPmi = options.pmiMode() == vrx::EPmiMode::Semantic;
    settings.structure = options.productStructureMode();
    settings.hiddenParts = options.hiddenPartsMode();
    settings.searchFolder = mp::toNarrow(options.alternateSearchPath(import_conventions::kFiles));
    settings.units = options.insUnitsDefSource();
    settings.scaled = options.insUnitsScaling();
    settings.turnStep = options.stepRotateYZ();
    settings.colors = options.colorsMode();
    settings.debugLog = options.printDebugLog();
    settings.componentMaps = settings.structure == vrx::EProductStructureMode::AsMechanicalComponents;
    return settings;
}
