#pragma once

#include "mp/wide.h"

/// The shared memory that an envelope names, for the programs to clear away when nobody will load it.
namespace shared_buffers
{

/// The name of the buffer that an envelope's text tells of, for a whole object or for the bodies of a block; empty for
/// an object that needs none.
mp::wstring nameIn(const mp::wstring& envelope);

/// Takes the buffer out of the system. Does not throw: it is used while something else has failed already.
void remove(const mp::wstring& name) noexcept;

} // namespace shared_buffers
