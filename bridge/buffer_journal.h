#pragma once

#include "bridge/handle.h"
#include "mp/wide.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vrx::bridge
{

/// A nameless file in which a child, and the children that it starts, note each shared buffer before they make it. So
/// the buffers of a child that was killed before it told of them can be removed. A child gets its parent's journals,
/// too: whoever stands between a host and its translator hides nothing from the host.
class VRX_BRIDGE BufferJournal
{
public:
    /// Throws std::runtime_error when the system gives no file.
    BufferJournal();

    /// What was noted up to now.
    std::vector<mp::wstring> names() const;

    /// The same, one after the other in the system's narrow code page. It needs no memory.
    void forEachName(const std::function<void(std::string_view)>& use) const;

    /// What a child inherits.
    NativeHandle inherited() const { return m_inherited.get(); }

private:
    OwnedHandle m_inherited; // before the other one, which may lend it the file
    OwnedHandle m_file;
};

/// From now on this process notes its shared buffers in the journals that it was started with. Without one nothing
/// happens. Any thread may call it, while others make buffers.
VRX_BRIDGE void keepInheritedJournals();

} // namespace vrx::bridge
