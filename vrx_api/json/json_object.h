#pragma once

#include "vrx_api/json/described.h"
#include "vrx_api/json/json_fwd.h"
#include "vrx_api/vrx_api_export.h"

namespace vrx
{

/// The contract of every piece of data that crosses: it reads itself from a JSON value and writes itself to one.
/// A model class accepts bad input: a key that is missing or of another kind leaves its field as it is. Logged is a
/// wrong kind of the whole value, and little else. A class that throws says so. One thread at a time uses an object,
/// for writing, too.
class VRX_API IJsonObject
{
public:
    virtual ~IJsonObject();
    /// Reads the object from its JSON, as its class tells.
    virtual void readObject(const JsonValue& value) = 0;

    /// Whatever the given value held is dropped. Keys are added by reference and strings are copied to the allocator.
    virtual void writeObject(JsonValue& value, JsonAllocator& allocator) const = 0;

protected:
    IJsonObject() = default;
    IJsonObject(const IJsonObject&) = default;
    IJsonObject(IJsonObject&&) = default;
    IJsonObject& operator=(const IJsonObject&) = default;
    IJsonObject& operator=(IJsonObject&&) = default;
};

} // namespace vrx
