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
    virtual void writeObject(wostream& stream) const = 0;
    virtual void readObject(wistream& stream) = 0;

protected:
    ISerializable() = default;
    ISerializable(const ISerializable&) = default;
    ISerializable& operator=(const ISerializable&) = default;
};

} // namespace mp
