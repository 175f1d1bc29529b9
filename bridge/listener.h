#pragma once

#include "bridge/bridge_export.h"
#include "mp/wide.h"
#include "vrx_api/exchange/peek_envelope.h"
#include "vrx_api/vrx_api_exchange_common.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <memory>

namespace vrx::bridge
{

/// What a host hears from a translator during an import or an export. What it throws ends the translator and passes out
/// of the session.
class VRX_BRIDGE Listener
{
public:
    Listener() = default;
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    virtual ~Listener();

    /// What the message of the next object says of it, before anything is loaded.
    virtual void onHead(const MessageHead& head);

    /// How far the translator has come.
    virtual void onProgress(const ExcProgress& progress);
    /// A text for the user.
    virtual void onMessage(const mp::wstring& text);
    /// A line for the host's log.
    virtual void onLog(const mp::wstring& text);
    /// A stage of the translation is complete.
    virtual void onStage(ExcStageFinished::EStage stage);

    /// An object of any other class: loaded, unless the session is lazy.
    virtual void onObject(const std::shared_ptr<IExchangeObject>& object);

    /// Whether an object in shared memory, of which only the class is known, is wanted; the others are dropped.
    virtual bool wants(const IExchangeObject& object);
};

} // namespace vrx::bridge
