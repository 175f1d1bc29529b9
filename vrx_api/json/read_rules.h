#pragma once

#include "vrx_api/vrx_api_export.h"

#include <cstdint>
#include <limits>

namespace vrx
{

/// What a reader asks of what others send. By default it takes whatever can be read, however much it is, and of damaged
/// data what is left.
struct VRX_API ReadRules
{
    static constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

    /// The most bytes of the content of a shared memory buffer, when it is decompressed.
    std::uint64_t plainBytes = kNoLimit;

    /// The most values of a text or a binary form: objects, arrays, members' names, strings, numbers, bools and nulls.
    /// In a model a number takes its own size and an object some hundred bytes.
    std::uint64_t values = kNoLimit;

    /// The most objects and arrays within each other.
    std::uint64_t depth = kNoLimit;

    /// Refuses a compressed stream without its end or with bytes behind it, bytes behind the value of a binary form, a
    /// text with a NUL in it, a member's name that is no string, and a name twice in an object.
    bool isStrict = false;

    /// Whether there is a rule for texts and binary forms.
    bool hasRulesOfForm() const { return isStrict || values != kNoLimit || depth != kNoLimit; }

    /// Only a limit on the content.
    static ReadRules upToPlainBytes(std::uint64_t count);

    /// Without limits.
    static ReadRules strict();

    /// For a reader whose partner may do harm: strict, and no more than 2 GiB, 200 million values and a depth of 100. A
    /// scene of 20 million triangles stays below.
    static ReadRules forUntrusted();
};

} // namespace vrx
