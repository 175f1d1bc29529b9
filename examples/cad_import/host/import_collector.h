#pragma once

#include "arguments.h"
#include "bridge/listener.h"
#include "component_data.h"
#include "measured_body.h"
#include "mechanical/mechanical_model.h"
#include "pmi/received_pmi.h"
#include "progress_bar.h"
#include "received_bodies.h"
#include "scene_page.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <cstdint>
#include <memory>
#include <string>

/// What an import brought.
struct ReceivedModel
{
    std::shared_ptr<vrx::ExcProductStructure> structure; // null when there came none
    ScenePage page;
    ReceivedBodies bodies{measuredBody};
    ReceivedPmi pmi;
    SentMechanicalData mechanical;
    ComponentData components;
};

/// Takes over what an import brings, as far as the arguments ask for it, and shows on standard error how it goes.
class ImportCollector : public vrx::bridge::Listener
{
public:
    ImportCollector(const Arguments& arguments, ReceivedModel& model);

    /// Clears the progress bar.
    ~ImportCollector() override;

    void onProgress(const vrx::ExcProgress& progress) override;
    void onMessage(const mp::wstring& text) override;
    void onLog(const mp::wstring& text) override;
    void onStage(vrx::ExcStageFinished::EStage stage) override;
    void onObject(const std::shared_ptr<vrx::IExchangeObject>& object) override;

    /// Looks are only for the page. Bodies are always worth restoring: what is said of them may be in other objects.
    bool wants(const vrx::IExchangeObject& object) override;

    void print(const std::string& text);

private:
    void measure(std::uint64_t id, const vrx::ExcMechanicalMiscData* data);

    const Arguments& m_arguments;
    ReceivedModel& m_model;
    ProgressBar m_bar;
};
