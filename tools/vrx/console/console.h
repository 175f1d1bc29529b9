#pragma once

/// The streams that a process begins with, as the two systems know them.
namespace console
{

/// Standard input or output as bytes: no line end is changed. A Windows console is told that they are UTF-8.
void setBinaryInput();
void setBinaryOutput();

/// Writes out what std::cout holds back. Throws std::system_error when output was lost, unless its reader went away.
void flushOutput();

/// True when a person sees it.
bool isOutputTerminal();
bool isErrorTerminal();

} // namespace console
