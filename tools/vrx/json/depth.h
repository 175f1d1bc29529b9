#pragma once

#include "mp/wide.h"

#include <cstddef>
#include <cstdint>

namespace json
{

/// Neither parsing nor any walk over a tree recurses, but each level takes memory. No model comes near this.
constexpr std::size_t kDeepest = 10'000'000;

/// Throws tool::InputError for a JSON text that nests deeper than that. What is no JSON passes.
void requireDepth(mp::wstring_view text);

/// The same for a binary form. What is none passes.
void requireDepth(const char* form, std::uint64_t size);

} // namespace json
