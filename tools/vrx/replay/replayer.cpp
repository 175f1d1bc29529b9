#include "replay/replayer.h"

#include "bridge/buffer_journal.h"
#include "bridge/frames.h"
#include "bridge/undelivered_buffers.h"
#include "end_request.h"
#include "mp/shared_buffer.h"
#include "replay/buffer_name.h"
#include "unloaded_buffers.h"
#include "vrx_api/command/result.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/peek_envelope.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <optional>
#include <thread>
#include <utility>

namespace replay
{

namespace
{

using std::chrono::steady_clock;

constexpr std::chrono::milliseconds kLongestPause{20};
constexpr std::chrono::milliseconds kLastBytes{100}; // what a dead host had written is there at once

vrx::bridge::Wait untilEnd()
{
    return {std::nullopt, &tool::isToEnd};
}

void sleepUntil(steady_clock::time_point end)
{
    for (auto now = steady_clock::now(); now < end; now = steady_clock::now())
    {
        untilEnd().check();
        std::this_thread::sleep_for(std::min<steady_clock::duration>(end - now, kLongestPause));
    }
}

void remove(const mp::wstring& buffer)
{
    vrx::bridge::UndeliveredBuffers().add(buffer);
}

void write(const mp::wstring& name, const std::vector<char>& content)
{
    mp::SharedBuffer<char> buffer;
    buffer.open(name, false);
    if (!content.empty())
    {
        buffer.write(content.data(), content.size());
    }
}

} // namespace

Replayer::Replayer(std::istream& capture, bool inRealTime)
    : m_reader(capture)
    , m_exchanges(m_reader)
    , m_inRealTime(inRealTime)
{
}

int Replayer::run()
{
    tool::takeEndSignals();
    vrx::bridge::keepInheritedJournals();
    bool isAnswered = false;
    try
    {
        isAnswered = answerAll();
    }
    catch (const std::exception& failure)
    {
        std::cerr << "vrx replay: " << failure.what() << '\n';
        dropMessages();
    }
    removeBuffers();
    return isAnswered ? 0 : 1;
}

// False when a command has no answer.
bool Replayer::answerAll()
{
    while (const std::optional<mp::wstring> message = nextMessage())
    {
        const vrx::MessageHead head = vrx::peekEnvelope(*message);
        if (head.kind != vrx::EMessageKind::Command && head.kind != vrx::EMessageKind::Unknown)
        {
            remove(head.bufferName);
            continue;
        }
        const mp::wstring command = commandIn(*message);
        const Exchange* const exchange = m_exchanges.next(command);
        if (exchange == nullptr)
        {
            refuse(command);
            continue;
        }
        if (exchange->hasObjects)
        {
            dropObjects();
        }
        play(*exchange);
        if (!exchange->isAnswered)
        {
            std::cerr << "vrx replay: the recording ends here, without an answer\n";
            return false;
        }
    }
    m_isHostDone = true;
    return true;
}

// A host that is done, or dead, loads nothing any more. One that is to find a dead translator may be about to.
void Replayer::removeBuffers() const
{
    const auto isHostGone = [this] { return m_isHostDone || m_host.hasEnded(); };
    vrx::bridge::UndeliveredBuffers undelivered;
    for (const mp::wstring& name : tool::unloadedBuffers(m_told, isHostGone))
    {
        if (isHostGone())
        {
            undelivered.add(name);
        }
    }
}

std::optional<mp::wstring> Replayer::nextMessage()
{
    return m_nextCommand ? std::exchange(m_nextCommand, std::nullopt) : m_messages.read(untilEnd());
}

// Up to the result that is their end, or to the next command where there is none.
void Replayer::dropObjects()
{
    while (std::optional<mp::wstring> message = nextMessage())
    {
        const vrx::MessageHead head = vrx::peekEnvelope(*message);
        if (head.kind == vrx::EMessageKind::Command)
        {
            m_nextCommand = std::move(message);
            return;
        }
        remove(head.bufferName);
        if (head.kind == vrx::EMessageKind::Result)
        {
            return;
        }
    }
}

// A host that was stopped, or died, within an export told of buffers that nobody loads.
void Replayer::dropMessages()
{
    const vrx::bridge::Wait wait{steady_clock::now() + kLastBytes, nullptr};
    try
    {
        while (const std::optional<mp::wstring> message = m_messages.read(wait))
        {
            remove(vrx::peekEnvelope(*message).bufferName);
        }
    }
    catch (const vrx::bridge::StreamError&)
    {
        // A living host has no more for us, or removes what it told of by itself.
    }
}

// When the host takes no more, the buffers that it was told of in this exchange are removed.
void Replayer::play(const Exchange& exchange)
{
    const auto begin = steady_clock::now();
    vrx::bridge::UndeliveredBuffers undelivered;
    std::vector<mp::wstring> told;
    std::optional<capture::Frame> buffer;
    for (const std::uint64_t place : exchange.places)
    {
        capture::Frame frame;
        m_reader.goTo(place);
        m_reader.next(frame);
        if (frame.kind != capture::EFrame::FromTranslator)
        {
            buffer = std::move(frame);
            continue;
        }
        if (m_inRealTime)
        {
            sleepUntil(begin + (frame.time - exchange.begin));
        }
        untilEnd().check();
        if (buffer && buffer->kind == capture::EFrame::Buffer)
        {
            const mp::wstring name = vrx::IExchangeObject::generateUUID();
            undelivered.add(name);
            told.push_back(name);
            write(name, buffer->content);
            frame.message = withBufferName(frame.message, buffer->name, name);
        }
        vrx::bridge::writeFrame(m_toHost, frame.message);
        buffer.reset();
    }
    for (const mp::wstring& name : told)
    {
        undelivered.delivered(name);
        m_told.insert(name);
    }
}

void Replayer::refuse(const mp::wstring& command) const
{
    vrx::Result result;
    result.setCode(vrx::Result::ECode::Error);
    result.setMessage(WIDE("The recording has no command ") + command);
    vrx::bridge::writeFrame(m_toHost, vrx::bridge::toText(result));
}

} // namespace replay
