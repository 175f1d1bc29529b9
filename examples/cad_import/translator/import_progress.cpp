#include "import_progress.h"

#include "bridge/translator_channel.h"
#include "mp/narrow.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

ImportProgress::ImportProgress(vrx::bridge::TranslatorChannel& channel)
    : m_channel(channel)
{
}

void ImportProgress::beginStage(const std::string& name, int end)
{
    m_stage = name;
    m_begin = m_end;
    m_end = end;
    send(m_begin);
}

void ImportProgress::advance(double share)
{
    const int progress = m_begin + static_cast<int>(std::clamp(share, 0.0, 1.0) * (m_end - m_begin));
    if (progress != m_sent)
    {
        send(progress);
    }
}

void ImportProgress::send(int progress)
{
    const auto report = std::make_shared<vrx::ExcProgress>();
    report->setProgress(progress);
    report->setStage(mp::toWide(m_stage));
    m_channel.send(report);
    m_sent = progress;
}

void KernelProgress::Show(const Message_ProgressScope&, Standard_Boolean)
{
    try
    {
        m_progress.advance(GetPosition());
    }
    catch (const std::runtime_error&)
    {
        m_isStopped = true; // the kernel reports from destructors, out of which nothing may be thrown
    }
}
