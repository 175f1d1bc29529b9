#pragma once

/// The streams that a process begins with, as the two systems know them.
namespace console
{

/// Standard input or output as bytes: no line end is changed. A Windows console is told that they are UTF-8.
void setBinaryInput();
void setBinaryOutput();

/// True when a person sees it.
bool isOutputTerminal();
bool isErrorTerminal();

} // namespace console
