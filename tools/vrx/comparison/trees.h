#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>

namespace comparison
{

struct Rules
{
    /// Two numbers, one of which is a double, are equal when they differ by no more than this, or by no more than this
    /// part of the larger of the two. Integers are equal only when they are.
    double tolerance = 0;
    bool all = false;                               ///< Every difference of an array is told, not the first few only.
    std::set<mp::wstring, std::less<>> ignoredKeys; ///< Members of these names are not compared.
};

/// One place at which two trees differ.
struct Difference
{
    std::string pointer;      ///< Where it is in the first tree; in the second tree for what only that has.
    const vrx::JsonValue* id; ///< Of the object around the place, where one is known by its id; or null.
    const vrx::JsonValue* a;  ///< Null for what only the second has.
    const vrx::JsonValue* b;  ///< Null for what only the first has.
    std::uint64_t more = 0;   ///< Not null: so many further elements of the array at the pointer differ.

    bool isOnlyInB() const { return a == nullptr && b != nullptr; }
};

/// Reports where two trees differ. Members are compared by name, the first of a name like readers take it; elements by
/// id where all of both arrays are objects with an id of their own and some ids are in both, and by place otherwise.
/// Keeps its own stack.
void compareTrees(const vrx::JsonValue& a, const vrx::JsonValue& b, const Rules& rules,
                  const std::function<void(const Difference&)>& report);

/// Whether there is nothing to report. Stops at the first difference.
bool areTreesEqual(const vrx::JsonValue& a, const vrx::JsonValue& b, const Rules& rules);

} // namespace comparison
