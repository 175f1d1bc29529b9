#pragma once

#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <memory>

namespace vrx::bridge
{
class TranslatorChannel;
}

class BlockBodies;
class ImportProgress;
class MechanicalData;
class ProductStructureBuilder;
class VisualizationBuilder;
struct ImportSettings;

/// Answers commands until the host closes the pipe.
class Translator
{
public:
    explicit Translator(vrx::bridge::TranslatorChannel& channel)
        : m_channel(channel)
    {
    }

    void run();

private:
    void answer(const vrx::Command& command);
    void sendInfo();
    void import(const vrx::Command& command);
    void translate(const ImportSettings& settings);
    void sendBodies(BlockBodies& bodies, const vrx::ExcProductStructure& structure,
                    const ProductStructureBuilder& builder, ImportProgress& progress);
    void sendMechanical(const MechanicalData& data);
    void sendVisualization(const VisualizationBuilder& builder,
                           const std::shared_ptr<vrx::ExcRootAssemblyVisualization>& root,
                           const vrx::ExcProductStructure& structure, ImportProgress& progress);

    vrx::bridge::TranslatorChannel& m_channel;
    bool m_isAnswered = false; // the running import
    bool m_kernelIsIntact = true;
};
