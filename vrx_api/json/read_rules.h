#pragma once

#include "vrx_api/vrx_api_export.h"

#include <cstdint>

namespace vrx
{

/// What a reader asks of what others send. By default it takes whatever can be read, however much it is, and of damaged
/// data what is left.
struct VRX_API ReadRules
{
    /// Stands for no limit.
    static constexpr std::uint64_t kNoLimit = ~std::uint64_t{0};

    /// The most bytes of the content of a shared memory buffer, when it is decompressed.
    std::uint64_t plainBytes = kNoLimit;

    /// The most values of a text or a binary form: objects, arrays, members' names, strings, numbers, bools and nulls.
    /// In a model a number takes 16 bytes at the most, and an empty object up to 400.
    std::uint64_t values = kNoLimit;

    /// The most objects and arrays, which are values, too.
    std::uint64_t objects = kNoLimit;

    /// The most objects and arrays within each other.
    std::uint64_t depth = kNoLimit;

    /// Refuses a compressed stream without its end or with bytes behind it, bytes behind the value of a binary form, a
    /// text with a NUL in it, a member's name that is no string, and a name twice in an object.
    bool isStrict = false;

    /// Whether there is a rule for texts and binary forms.
    bool hasRulesOfForm() const { return isStrict || values != kNoLimit || objects != kNoLimit || depth != kNoLimit; }

    /// Only a limit on the content.
    static ReadRules upToPlainBytes(std::uint64_t count);

    /// Without limits.
    static ReadRules strict();

    /// For a reader whose partner may do harm: strict, and no more than 2 GiB, 200 million values, 20 million objects
    /// and a depth of 100. A scene of 20 million triangles stays below. The model of a content takes 12 GB at the most.
    static ReadRules forUntrusted();
};

} // namespace vrx
