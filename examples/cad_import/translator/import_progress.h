#pragma once

#include <Message_ProgressIndicator.hxx>

#include <string>

namespace vrx::bridge
{
class TranslatorChannel;
}

/// The progress of one import, from 0 to 100 over all its stages; a message goes out only when a number has changed.
class ImportProgress
{
public:
    explicit ImportProgress(vrx::bridge::TranslatorChannel& channel);

    /// Begins a stage that takes the range up to `end`, in hundredths of the whole.
    void beginStage(const std::string& name, int end);

    /// `share` of the stage is done, 0 to 1.
    void advance(double share);

private:
    void send(int progress);

    vrx::bridge::TranslatorChannel& m_channel;
    std::string m_stage;
    int m_begin = 0;
    int m_end = 0;
    int m_sent = -1;
};

/// Brings the kernel's progress reports to the current stage, and stops the kernel when they cannot be sent any more.
class KernelProgress : public Message_ProgressIndicator
{
public:
    explicit KernelProgress(ImportProgress& progress)
        : m_progress(progress)
    {
    }

protected:
    void Show(const Message_ProgressScope& scope, Standard_Boolean isForce) override;
    Standard_Boolean UserBreak() override { return m_isStopped; }

private:
    ImportProgress& m_progress;
    bool m_isStopped = false;
};
