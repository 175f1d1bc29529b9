#pragma once

#include "bridge/buffer_journal.h"
#include "bridge/child_process.h"
#include "bridge/frames.h"
#include "bridge/listener.h"
#include "bridge/translator_failure.h"
#include "bridge/undelivered_buffers.h"
#include "vrx_api/exchange/peek_envelope.h"
#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_ferrant_info.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace vrx::bridge
{

/// A running translator: sends commands, hands on what comes back. Each operation throws TranslatorFailure when the
/// translator dies, is silent for too long, breaks the protocol, or the host cancels, and std::length_error for a
/// message of more than 2^26 units; the translator has ended then. When the session ends, in whatever way, all shared
/// memory that the translator left and the session has not loaded is removed from the system. One thread at a time uses
/// a session, but for `cancel` and `isCancelled`; different sessions work in different threads at once.
class VRX_BRIDGE HostSession
{
public:
    /// Gives the objects of an export one after the other, and null behind the last.
    using ObjectSource = std::function<std::shared_ptr<IExchangeObject>()>;

    /// Starts the program with its arguments. Throws std::runtime_error when it cannot be started.
    explicit HostSession(const std::vector<std::string>& command);
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;
    ~HostSession();

    /// How long the translator may be silent before an answer or the next message. There is no limit until one is set.
    /// A year is the longest. On Windows one who does not read what is written to it is not noticed.
    void setTimeLimit(std::chrono::milliseconds limit);

    /// A lazy session hands on an object in shared memory before it is loaded. The program loads it when it wants,
    /// while the session lives and before `finish`.
    void setLazy(bool lazy) { m_isLazy = lazy; }

    /// Of all that comes, and of the contents of the objects. It is strict reading until rules are set; a host that
    /// does not trust its translator sets `ReadRules::forUntrusted()`.
    void setReadRules(const ReadRules& rules) { m_readRules = rules; }

    /// Of what an export sends.
    void setCompression(ECompression compression) { m_compression = compression; }

    /// Asks the translator what it is and which formats it can do.
    FerrantInfo info();
    /// Asks whether the translator answers.
    Result ping();

    /// The options say by which interface. The listener gets each object when it comes, while the translator works on
    /// the next one: it has got those before, when the result is an error.
    Result importFile(const std::shared_ptr<ImportOptions>& options, Listener& listener);

    /// The listener hears of the progress after each object. The translator may answer before it has got all objects,
    /// and end. An export that fails removes what it has sent and nobody has loaded, the bodies of blocks, too. What
    /// the translator sends while one object is on its way must fit in a pipe, which is a megabyte or less: some
    /// hundred messages.
    Result exportFile(const std::shared_ptr<ExportOptions>& options, const ObjectSource& nextObject,
                      Listener& listener);

    /// From a listener, another thread or a signal handler: the running operation, or else the next one, throws a
    /// TranslatorFailure. The translator is asked to end, and killed after two seconds. On Windows an operation that
    /// writes to one who does not read goes on.
    void cancel() noexcept { m_isCancelled = true; }

    /// Whether somebody has called `cancel`.
    bool isCancelled() const noexcept { return m_isCancelled; }

    /// Lets the translator end while the host goes on: there will be no more commands.
    void finish() noexcept { m_translator.closeInput(); }

private:
    Wait wait() const;
    void sendCommand(const Command& command, Listener& listener);
    bool send(const mp::ISerializable& message);
    bool sendObject(const std::shared_ptr<IExchangeObject>& object);
    mp::wstring receive();

    Result awaitResult(Listener& listener);
    std::optional<Result> take(const mp::wstring& text, Listener& listener);
    void takeObject(const mp::wstring& text, const MessageHead& head, Listener& listener);
    void parse(const mp::wstring& text, mp::ISerializable& message, const char* what);
    void load(IExchangeObject& object, const mp::wstring& buffer);

    [[noreturn]] void failWithoutInfo(const mp::wstring& text, const MessageHead& head);
    template <class Operation>
    auto endingOnFailure(Operation operation);
    [[noreturn]] void fail(TranslatorFailure::EKind kind, const std::string& text);
    [[noreturn]] void failAsDead(const std::string& text, const std::string& reason = {});
    void stop() noexcept;
    void finishTranslator() noexcept;
    void note(const mp::wstring& text);
    bool drain(std::chrono::milliseconds limit) noexcept;
    void removeBuffers() noexcept;

    std::optional<std::chrono::milliseconds> m_timeLimit;
    bool m_isLazy = false;
    ReadRules m_readRules = ReadRules::strict();
    ECompression m_compression = ECompression::AsTold;
    std::atomic<bool> m_isCancelled = false;

    UndeliveredBuffers m_undelivered;            // either way
    std::set<std::string, std::less<>> m_loaded; // buffers that stay, by their names in the narrow code page
    BufferJournal m_journal;
    ChildProcess m_translator;
    FrameReader m_messages{m_translator.output()};
    std::string m_end; // of the translator, in words; empty while it runs
};

} // namespace vrx::bridge
