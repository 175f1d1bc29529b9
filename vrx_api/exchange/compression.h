#pragma once

namespace vrx
{

/// How a sender compresses binary objects. Every reader takes each of these forms.
enum class ECompression
{
    /// Objects whose class tells to compress, at the usual level.
    AsTold,
    /// The same objects at the fastest level: about a third of the time, and 5 to 20 % more shared memory.
    Fast,
    /// No object: the speed of a copy in memory, and about eight times the shared memory.
    None
};

} // namespace vrx
