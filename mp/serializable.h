#pragma once

#include "mp/wide.h"
#include "vrx_api/vrx_api_export.h"

namespace mp
{

/// The contract of a class that is one whole message on a wide text stream.
/// A stream holds that message and nothing behind it.
class VRX_API ISerializable
{
public:
    virtual ~ISerializable();
    /// Writes the message as JSON text.
    virtual void writeObject(wostream& stream) const = 0;
    /// Reads the message from all that the stream holds. A class tells what it throws for other texts.
    virtual void readObject(wistream& stream) = 0;

protected:
    ISerializable() = default;
    ISerializable(const ISerializable&) = default;
    ISerializable& operator=(const ISerializable&) = default;
};

} // namespace mp
