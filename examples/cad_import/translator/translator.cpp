#include "translator.h"

#include "bodies/block_bodies.h"
#include "bridge/translator_channel.h"
#include "features/features.h"
#include "import_progress.h"
#include "looks/palette_colors.h"
#include "looks/visualization_builder.h"
#include "mechanical/entity_information.h"
#include "mechanical/layers.h"
#include "mechanical/materials.h"
#include "mechanical/mechanical_data.h"
#include "mechanical/shape_links.h"
#include "mechanical/stated_figures.h"
#include "mp/narrow.h"
#include "pmi/drawn_pmi.h"
#include "pmi/mechanical_pmi.h"
#include "pmi/pmi_summary.h"
#include "reading/cad_reader.h"
#include "reading/import_settings.h"
#include "structure/component_maps.h"
#include "structure/product_structure_builder.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_ferrant_info.h"

#include <OSD.hxx>
#include <Standard_ErrorHandler.hxx>
#include <Standard_Failure.hxx>
#include <Standard_Version.hxx>

#include <csignal>
#include <exception>
#include <new>
#include <optional>
#include <string>

namespace
{

vrx::Result result(vrx::Result::ECode code, const std::string& message)
{
    vrx::Result result;
    result.setCode(code);
    result.setMessage(mp::toWide(message));
    result.setFinished(true);
    return result;
}

vrx::Result error(const std::string& message)
{
    return result(vrx::Result::ECode::Error, message);
}

vrx::Result importResult(const CadModel& model)
{
    std::string message = model.damage.empty() ? "" : model.damage + " The model may be incomplete.";
    message += (message.empty() || model.remark.empty() ? "" : " ") + model.remark;
    return result(message.empty() ? vrx::Result::ECode::Ok : vrx::Result::ECode::Warning, message);
}

} // namespace

void Translator::run()
{
    OSD::SetSignal(false);
    // The kernel takes these too, and would turn them into failures of the file.
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
    {
        std::signal(number, SIG_DFL);
    }
    while (const std::optional<vrx::Command> command = m_kernelIsIntact ? m_channel.receive() : std::nullopt)
    {
        answer(*command);
    }
}

void Translator::answer(const vrx::Command& command)
{
    switch (command.type())
    {
    case vrx::Command::EType::Info:
        sendInfo();
        break;
    case vrx::Command::EType::Ping:
        m_channel.send(result(vrx::Result::ECode::Ok, ""));
        break;
    case vrx::Command::EType::Import:
        import(command);
        break;
    case vrx::Command::EType::Export:
        m_channel.send(error("This translator does not export."));
        break;
    default:
        m_channel.send(error("This translator does not know the command."));
        break;
    }
}

void Translator::sendInfo()
{
    vrx::FerrantInfo info;
    info.setName(WIDE("cad_translator"));
    info.setVersion(mp::toWide(CAD_TRANSLATOR_VERSION));
    info.setRequestedInterface(vrx::EFerrantInterface::UConnect);
    info.newThirdpartyCore().setName(WIDE("Open CASCADE Technology")).setVersion(mp::toWide(OCC_VERSION_COMPLETE));
    info.newImportFormat()
        .setDescription(WIDE("STEP files (AP203, AP214, AP242)"))
        .addExtension(WIDE("stp"))
        .addExtension(WIDE("step"))
        .addExtension(WIDE("p21"))
        .addFilterExtensions(WIDE("stp;step;p21"));
    info.newImportFormat()
        .setDescription(WIDE("IGES files"))
        .addExtension(WIDE("igs"))
        .addExtension(WIDE("iges"))
        .addFilterExtensions(WIDE("igs;iges"));
    m_channel.send(info);
}

void Translator::import(const vrx::Command& command)
{
    std::string failed;
    m_isAnswered = false;
    try
    {
        // Damaged files do crash the kernel: its signals become exceptions here.
        OCC_CATCH_SIGNALS
        translate(command.internalInterface() == vrx::EFerrantInterface::Legacy
                      ? settingsOf(*command.legacyImportOptions())
                      : settingsOf(*command.importOptions()));
    }
    catch (const Standard_Failure& failure)
    {
        // The kernel turns its crashes into such failures too, with nothing cleared up on the way: the answer is the
        // last thing that this process does.
        m_kernelIsIntact = false;
        failed =
            std::string("The file is damaged, or too much for the modelling kernel: ") + failure.GetMessageString();
    }
    catch (const std::bad_alloc&)
    {
        failed = "There is not enough memory for this file.";
    }
    catch (const std::exception& failure)
    {
        failed =
            vrx::bridge::TranslatorChannel::isTerminationDue() ? "The translator was told to end." : failure.what();
    }
    if (!m_isAnswered)
    {
        m_channel.send(error(failed));
    }
}

// Answers before it clears the model away, which takes a while.
void Translator::translate(const ImportSettings& settings)
{
    ImportProgress progress(m_channel);
    const CadModel model = readModel(settings, m_channel, progress);
    if (settings.pmi)
    {
        sendPmiSummary(model, m_channel);
    }

    progress.beginStage("Sending the product structure", 60);
    ProductStructureBuilder builder(model, settings);
    const std::shared_ptr<vrx::ExcProductStructure> structure = builder.build();
    palette_colors::apply(*structure, settings.colors);
    m_channel.send(structure);
    const std::vector<StatedMaterial> materials = statedMaterials(model, builder);
    if (settings.componentMaps)
    {
        m_channel.send(componentNames(*structure));
        m_channel.send(componentMaterials(*structure, materials));
    }
    m_channel.send(std::make_shared<vrx::ExcStageFinished>(vrx::ExcStageFinished::EStage::ProductStructure));

    BlockBodies bodies;
    sendBodies(bodies, *structure, builder, progress);
    ShapeLinks links(model, builder, bodies);
    MechanicalData mechanical;
    addMaterials(mechanical, materials, links);
    addStatedFigures(mechanical, model, builder, links);
    const std::unique_ptr<DrawnPmi> drawn = settings.pmi ? drawnPmi(model, builder) : nullptr;
    std::map<int, mp::wstring> drawnIds;
    if (drawn && settings.semanticPmi)
    {
        drawnIds = addPmi(mechanical, model, builder, links, *drawn);
    }
    const bool showsHidden = settings.hiddenParts == vrx::EHiddenPartsMode::ImportShow;
    if (settings.layers)
    {
        addLayers(mechanical, model, builder, links, drawn.get(), drawnIds, showsHidden);
    }
    const auto hidden = showsHidden ? std::vector<ShapeLinks::Link>() : hiddenOnLayers(model, links);
    addEntityInformation(mechanical, model, builder.frame(), links, hidden, showsHidden);
    addFeatures(mechanical, model, builder, links);
    sendMechanical(mechanical);
    const VisualizationBuilder scenes(settings, *structure, builder, hidden);
    sendVisualization(scenes, drawn ? scenes.root(*drawn, drawnIds) : nullptr, *structure, progress);
    m_channel.send(importResult(model));
    m_isAnswered = true;
}

void Translator::sendBodies(BlockBodies& bodies, const vrx::ExcProductStructure& structure,
                            const ProductStructureBuilder& builder, ImportProgress& progress)
{
    progress.beginStage("Sending the bodies", 65);
    double done = 0;
    for (const std::shared_ptr<vrx::ExcBlock>& block : structure.blocks())
    {
        const std::shared_ptr<vrx::ExcBlockGeometry> geometry =
            bodies.make(*block, builder.frame().scaled(builder.shapeOf(*block)));
        geometry->own(false);
        m_channel.send(geometry);
        progress.advance(++done / static_cast<double>(structure.blocks().size()));
    }
}

void Translator::sendMechanical(const MechanicalData& data)
{
    if (data.root())
    {
        m_channel.send(data.root());
        m_channel.send(std::make_shared<vrx::ExcStageFinished>(vrx::ExcStageFinished::EStage::RootMechanical));
    }
    for (const auto& [id, block] : data.blocks())
    {
        m_channel.send(block);
    }
    m_channel.send(std::make_shared<vrx::ExcStageFinished>(vrx::ExcStageFinished::EStage::Mechanical));
}

void Translator::sendVisualization(const VisualizationBuilder& builder,
                                   const std::shared_ptr<vrx::ExcRootAssemblyVisualization>& root,
                                   const vrx::ExcProductStructure& structure, ImportProgress& progress)
{
    progress.beginStage("Drawing the parts", 100);
    if (root)
    {
        m_channel.send(root);
        m_channel.send(std::make_shared<vrx::ExcStageFinished>(vrx::ExcStageFinished::EStage::RootVisualization));
    }
    double done = 0;
    for (const std::shared_ptr<vrx::ExcBlock>& block : structure.blocks())
    {
        if (const std::shared_ptr<vrx::ExcBlockVisualization> scene = builder.block(*block))
        {
            m_channel.send(scene);
        }
        progress.advance(++done / static_cast<double>(structure.blocks().size()));
    }
    m_channel.send(std::make_shared<vrx::ExcStageFinished>(vrx::ExcStageFinished::EStage::Visualization));
}
