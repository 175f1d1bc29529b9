#pragma once

#include "mp/wide.h"
#include "vrx_api/vrx_api_export.h"

namespace vrx
{

/// The kinds of messages between a host and a translator.
enum class EMessageKind
{
    Unknown, ///< No JSON object, or one that is none of the others.
    Command,
    Result,
    Info, ///< A translator's description of itself, `FerrantInfo`.
    Envelope,
};

/// What a message says of itself.
struct MessageHead
{
    /// What kind of message it is.
    EMessageKind kind = EMessageKind::Unknown;
    mp::wstring objectName; ///< Of an envelope: the name of the exchange object's class.
    mp::wstring bufferName; ///< Of an envelope: the shared memory that holds its object or bodies; empty for none.
};

/// Looks into a message without making its object and without touching its shared memory. Never refuses a text.
VRX_API MessageHead peekEnvelope(const mp::wstring& text);

} // namespace vrx
