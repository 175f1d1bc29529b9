#pragma once

#include "child_process.h"
#include "mp/serializable.h"
#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_common.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_ferrant_info.h"

#include <memory>
#include <stdexcept>
#include <string>

/// The translator ended or sent what it should not.
class TranslatorFailure : public std::runtime_error
{
public:
    explicit TranslatorFailure(const std::string& message)
        : std::runtime_error(message)
    {
    }
};

/// What a host hears from a translator during an import.
class ImportListener
{
public:
    virtual ~ImportListener() = default;
    virtual void onProgress(const vrx::ExcProgress& progress) = 0;
    virtual void onMessage(const mp::wstring& text) = 0;
    virtual void onLog(const mp::wstring& text) = 0;
    virtual void onStage(vrx::ExcStageFinished::EStage stage) = 0;
    virtual void onObject(const std::shared_ptr<vrx::IExchangeObject>& object) = 0;

    /// Whether an object in shared memory, of which only the name is known, is worth loading; the others are dropped.
    virtual bool wants(const vrx::IExchangeObject&) { return true; }
};

/// A running translator: sends commands, hands on what comes back. Each operation throws TranslatorFailure when the
/// translator dies or breaks the protocol; no shared memory of which it has told is left behind then.
class TranslatorSession
{
public:
    explicit TranslatorSession(const std::string& program);

    vrx::FerrantInfo info();
    vrx::Result ping();

    /// The options say by which interface. The translator's result. The listener gets each object when it comes, while
    /// the translator works on the next one: when the result is an error, or what the listener throws ends the import,
    /// it has got those before.
    vrx::Result import(const std::shared_ptr<vrx::ImportOptions>& options, ImportListener& listener);

    /// Lets the translator end while the host goes on: there will be no more commands.
    void finish();

private:
    void send(const vrx::Command& command);
    void dropRest() noexcept;
    mp::wstring receive();

    ChildProcess m_translator;
};
