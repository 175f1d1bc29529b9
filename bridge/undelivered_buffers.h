#pragma once

#include "bridge/bridge_export.h"
#include "mp/wide.h"

#include <set>
#include <string>

namespace vrx::bridge
{

/// The shared memory of which one side has told the other, and which nobody has loaded yet. What is still on the list
/// when it ends is removed from the system. A name that no buffer of this library has (see `isBufferName`), or an empty
/// one, is passed over, so that the name in any message's head can be given.
class VRX_BRIDGE UndeliveredBuffers
{
public:
    UndeliveredBuffers() = default;
    UndeliveredBuffers(const UndeliveredBuffers&) = delete;
    UndeliveredBuffers& operator=(const UndeliveredBuffers&) = delete;
    ~UndeliveredBuffers();

    /// Adds a buffer, or the one that a message names. When that can't be done, it is removed from the system.
    void add(const mp::wstring& name);
    void addFrom(const mp::wstring& message);

    /// Removes from the system what a message names that is not to be looked into.
    static void removeNamedIn(const mp::wstring& message) noexcept;

    /// The buffer is the affair of the one who loaded it.
    void delivered(const mp::wstring& name);

    /// Removes this one from the system: nobody will load it.
    void remove(const mp::wstring& name);

    /// Forgets those that are no more in the system, or another user's.
    void forgetLoaded();

    /// Removes those that are left from the system. It needs no memory, on Windows once a buffer was opened.
    void removeAll() noexcept;

private:
    std::set<std::string> m_names; // in the narrow form, in which they are removed without memory
};

} // namespace vrx::bridge
