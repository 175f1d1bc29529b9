#include "console/console.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

namespace console
{

namespace
{

// Older consoles take no escape sequences before they are told to.
bool isTerminal(DWORD handle)
{
    HANDLE const stream = GetStdHandle(handle);
    DWORD mode = 0;
    return GetConsoleMode(stream, &mode) != 0 && SetConsoleMode(stream, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

} // namespace

void setBinaryInput()
{
    _setmode(_fileno(stdin), _O_BINARY);
}

void setBinaryOutput()
{
    _setmode(_fileno(stdout), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
}

bool isOutputTerminal()
{
    return isTerminal(STD_OUTPUT_HANDLE);
}

bool isErrorTerminal()
{
    return isTerminal(STD_ERROR_HANDLE);
}

} // namespace console
