#include "capture/capture_bytes.h"

#include <zlib.h>

namespace capture
{

std::uint32_t checksum(std::uint32_t before, const char* data, std::size_t size)
{
    if (size == 0)
    {
        return before; // zlib takes a null pointer for the wish to begin
    }
    const auto* const bytes = reinterpret_cast<const Bytef*>(data); // NOLINT: zlib's bytes are unsigned
    return static_cast<std::uint32_t>(crc32_z(before, bytes, size));
}

} // namespace capture
