#pragma once

#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <memory>

class HostChannel;
class ImportProgress;
class ProductStructureBuilder;
class VisualizationBuilder;
struct DrawnPmi;
struct ImportSettings;

/// Answers commands until the host closes the pipe.
class Translator
{
public:
    explicit Translator(HostChannel& channel)
        : m_channel(channel)
    {
    }

    void run();

private:
    void answer(const mp::wstring& text);
    void sendInfo();
    vrx::Result import(const vrx::Command& command);
    vrx::Result translate(const ImportSettings& settings);
    void sendBodies(const vrx::ExcProductStructure& structure, const ProductStructureBuilder& builder,
                    ImportProgress& progress);
    void sendVisualization(const VisualizationBuilder& builder, const DrawnPmi* drawn,
                           const vrx::ExcProductStructure& structure, ImportProgress& progress);

    HostChannel& m_channel;
    bool m_kernelIsIntact = true;
};
