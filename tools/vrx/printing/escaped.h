#pragma once

#include "mp/wide.h"

#include <string>

/// Text of a model is never believed to be harmless for a terminal: control characters, what overrides the direction of
/// writing, invisible separators and lone surrogates are always escaped.
namespace printing
{

/// A JSON string in UTF-8, with its quotation marks.
std::string quoted(mp::wstring_view text);

/// The same without them, for names in lines of text.
std::string escaped(mp::wstring_view text);

/// The same, but with quotation marks and backslashes as they are, for sentences.
std::string harmless(mp::wstring_view text);

} // namespace printing
