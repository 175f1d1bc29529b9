#include "console/console.h"

#include <cerrno>
#include <iostream>
#include <system_error>

namespace console
{

void flushOutput()
{
    std::cout.flush();
    if (std::cout)
    {
        return;
    }
    // The reason may be overwritten since: one more byte tells it again.
    std::cout.clear();
    errno = 0;
    std::cout << std::endl;
    const int reason = errno;
    if (reason != EPIPE)
    {
        throw std::system_error(reason == 0 ? EIO : reason, std::generic_category(), "the output is not complete");
    }
}

} // namespace console
