#include "bridge/stream.h"

namespace vrx::bridge
{

const OwnedHandle& Stream::openHandle() const
{
    if (!isOpen())
    {
        throw StreamError("the pipe is closed");
    }
    return m_handle;
}

} // namespace vrx::bridge
