#pragma once

#include <cstdint>

/// The handle of an object in a drawing, as far as the library needs one: a number with an ordering. A build with
/// `VRX_API_DRAWING_DATABASE` has the drawing database's own type of this name in its place: a copyable type with an
/// ordering, made of an unsigned 64-bit number and converted back to it.
using OdDbHandle = std::uint64_t;
