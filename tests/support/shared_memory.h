#pragma once

#include "mp/shared_buffer.h"
#include "vrx_api/exchange/exchange_object.h"

#include <string>
#include <string_view>

namespace test
{

/// Takes a buffer out of the system: its bytes, none when there was no such buffer.
inline std::string takeBuffer(const mp::wstring& name)
{
    mp::SharedBuffer<char> buffer;
    buffer.open(name, true);
    std::vector<char> bytes;
    buffer.read(bytes);
    return {bytes.begin(), bytes.end()};
}

/// Leaves bytes in the system under a new name.
inline mp::wstring leaveBuffer(std::string_view bytes)
{
    mp::wstring name = vrx::IExchangeObject::generateUUID();
    mp::SharedBuffer<char> buffer;
    buffer.open(name, false);
    buffer.write(bytes.data(), bytes.size());
    return name;
}

} // namespace test
