#pragma once

#include "child_process.h"
#include "mp/serializable.h"
#include "received_objects.h"
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

    /// Whether an object in shared memory is worth loading; the others are dropped. Asked once all have come, from the
    /// last to the first: what is said of a block comes after the bodies, which may only be worth it then.
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

    /// The options say by which interface. The translator's result. When that is no error, the listener has got all
    /// objects by then: those in shared memory are loaded when the result has come.
    vrx::Result import(const std::shared_ptr<vrx::ImportOptions>& options, ImportListener& listener);

private:
    void send(const vrx::Command& command);
    mp::wstring receive();

    ChildProcess m_translator;
};
