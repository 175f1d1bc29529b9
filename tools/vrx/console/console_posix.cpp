#include "console/console.h"

#include <unistd.h>

namespace console
{

void setBinaryInput()
{
}

void setBinaryOutput()
{
}

bool isOutputTerminal()
{
    return isatty(STDOUT_FILENO) == 1;
}

bool isErrorTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

} // namespace console
