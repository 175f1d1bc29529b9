#include "record/recorder.h"

#include "bridge/frames.h"
#include "bridge/undelivered_buffers.h"
#include "end_request.h"
#include "unloaded_buffers.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <exception>
#include <future>
#include <iostream>
#include <optional>
#include <string_view>
#include <thread>

namespace record
{

namespace
{

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using vrx::bridge::StreamError;

constexpr auto kGrace = 1500ms; // for a translator that was asked to end
constexpr auto kPause = 10ms;
constexpr auto kLastBytes = 100ms; // what a dead host had written is there at once

// Passes the bytes on that are no message, and all after them. There are none where another stream has failed.
template <class Keep>
void passStray(const vrx::bridge::FrameReader& reader, const vrx::bridge::Stream& from, const vrx::bridge::Stream& to,
               const vrx::bridge::Wait& wait, const Keep& keep)
{
    std::array<char, 16384> piece{};
    for (std::string bytes = reader.rest(); !bytes.empty();
         bytes.assign(piece.data(), from.readSome(piece.data(), piece.size(), wait)))
    {
        keep(bytes);
        to.writeAll(bytes.data(), bytes.size(), wait);
    }
}

} // namespace

Recorder::Recorder(const std::vector<std::string>& command)
    : m_translator(command, &m_journal)
{
}

int Recorder::run(Recording& recording)
{
    m_recording = &recording;
    tool::takeEndSignals();
    std::future<void> watch = std::async(std::launch::async, [this] { watchHost(); });
    std::future<void> commands = std::async(std::launch::async, [this] { passCommands(); });
    passAnswers();
    commands.wait();
    m_isDone = true;
    commands.get();
    const std::string howItEnded = m_translator.end();
    const std::optional<int> exitCode = m_translator.exitCode();
    const std::set<mp::wstring> left = tool::unloadedBuffers(recording.told(), [this] { return isHostGone(); });
    m_unloaded.insert(left.begin(), left.end());
    recording.end(m_unloaded, exitCode, howItEnded);
    removeBuffers();
    if (!exitCode)
    {
        std::cerr << "vrx record: the translator died: " << howItEnded << '\n';
    }
    return exitCode.value_or(1);
}

// Ends with the translator's output.
void Recorder::passAnswers()
{
    try
    {
        vrx::bridge::FrameReader answers(m_translator.output());
        try
        {
            passMessages(answers);
        }
        catch (const StreamError& failure)
        {
            std::cerr << "vrx record: the translator's output: " << failure.what() << '\n';
            passStray(answers, m_translator.output(), m_toHost, {},
                      [this](std::string_view bytes) { m_recording->strayFromTranslator(bytes); });
        }
    }
    catch (const std::exception& failure)
    {
        std::cerr << "vrx record: the translator's output: " << failure.what() << '\n';
        tool::isToEnd = true;
    }
    // The host hears of the end at once.
    m_toHost.close();
    m_hasAllAnswers = true;
}

// A host that is gone does not end it: what the translator tells of until its own end is still to be removed.
void Recorder::passMessages(vrx::bridge::FrameReader& answers)
{
    while (const std::optional<mp::wstring> message = answers.read())
    {
        m_recording->fromTranslator(*message);
        try
        {
            vrx::bridge::writeFrame(m_toHost, *message);
        }
        catch (const StreamError&)
        {
            m_hostTakesNothing = true;
            tool::isToEnd = true;
        }
    }
}

// Is alone with the translator's input and with its end.
void Recorder::passCommands()
{
    vrx::bridge::FrameReader commands(m_fromHost);
    const vrx::bridge::Wait wait{std::nullopt, &tool::isToEnd};
    try
    {
        try
        {
            while (const std::optional<mp::wstring> message = commands.read(wait))
            {
                m_recording->fromHost(*message);
                vrx::bridge::writeFrame(m_translator.input(), *message, wait);
            }
        }
        catch (const vrx::bridge::Cancelled&)
        {
            throw;
        }
        catch (const StreamError& failure)
        {
            std::cerr << "vrx record: the host's commands: " << failure.what() << '\n';
            passStray(commands, m_fromHost, m_translator.input(), wait,
                      [this](std::string_view bytes) { m_recording->strayFromHost(bytes); });
        }
    }
    catch (const vrx::bridge::Cancelled&)
    {
        // The translator is ended below.
    }
    catch (const std::exception& failure)
    {
        std::cerr << "vrx record: the host's commands: " << failure.what() << '\n';
    }
    // A host that has all answers will load nothing any more, and the translator is about to remove what is left.
    if (m_recording->isAnswered())
    {
        m_unloaded = tool::existingBuffers(m_recording->told());
    }
    m_translator.closeInput();
    endTranslator();
    dropCommands(commands);
}

// A dead host's translator gets a moment to end by itself.
void Recorder::watchHost() const
{
    auto end = steady_clock::time_point::max();
    while (!m_isDone && steady_clock::now() < end)
    {
        std::this_thread::sleep_for(kPause);
        if (m_host.hasEnded())
        {
            end = std::min(end, steady_clock::now() + kGrace);
        }
    }
    if (!m_isDone)
    {
        tool::isToEnd = true;
    }
}

// Waits for the end of the translator, and brings it about when that is asked for.
void Recorder::endTranslator()
{
    while (!tool::isToEnd)
    {
        if (hasTranslatorEnded())
        {
            return;
        }
        std::this_thread::sleep_for(kPause);
    }
    m_translator.terminate();
    m_translator.wait(kGrace);
    m_translator.kill(); // with what may be left of those that it started
}

// One of those that it started may go on with its output.
bool Recorder::hasTranslatorEnded()
{
    return m_hasAllAnswers && m_translator.wait(0ms);
}

// A host that was stopped, or died, within an export told of buffers that nobody loads.
void Recorder::dropCommands(vrx::bridge::FrameReader& commands)
{
    const vrx::bridge::Wait wait{steady_clock::now() + kLastBytes, nullptr};
    try
    {
        while (const std::optional<mp::wstring> message = commands.read(wait))
        {
            m_recording->fromHost(*message);
        }
    }
    catch (const StreamError&)
    {
        // A living host has no more for us, or removes what it told of by itself.
    }
}

bool Recorder::isHostGone() const
{
    return m_hostTakesNothing || m_host.hasEnded();
}

// What a living host was told of is its own affair.
void Recorder::removeBuffers() const
{
    vrx::bridge::UndeliveredBuffers undelivered;
    for (const mp::wstring& name : m_journal.names())
    {
        undelivered.add(name);
    }
    for (const mp::wstring& name : m_recording->told())
    {
        if (isHostGone())
        {
            undelivered.add(name);
        }
        else
        {
            undelivered.delivered(name);
        }
    }
}

} // namespace record
