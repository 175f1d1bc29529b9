#pragma once

#include "input/input.h"
#include "printing/palette.h"

#include <string>

/// An item of an input in one line, safe to be printed.
namespace printing
{

/// The name of an object's class, or what kind of message it is. Of an object alone its class is guessed, with a
/// question mark behind it.
std::string className(const input::Item& item);

/// "#12 3.250 s from the translator: exc_block_geometry, buffer 1,024 bytes (compressed, plain 4,096)"
std::string heading(const input::Item& item, const Palette& palette);

/// The same with the object's id and its longest arrays.
std::string summary(const input::Item& item, const Palette& palette);

} // namespace printing
