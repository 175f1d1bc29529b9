#pragma once

#include "vrx_api/json/json_fwd.h"
#include "vrx_api/json/read_rules.h"
#include "vrx_api/vrx_api_export.h"

namespace vrx
{

/// The text form of JSON on a wide stream, which holds one value and no more: no byte order mark, no terminator.
/// Any number of threads may use it at once, each with its own streams and documents.
class VRX_API JsonTextIO
{
public:
    JsonTextIO() = delete;

    /// Writes the document; with `pretty` one member stands on a line and an array stays on one.
    /// Throws `std::runtime_error` for what JSON has no text for: a number that is not finite, or a name that is no
    /// string. What stands before it is on the stream by then.
    static wostream& write(wostream& stream, const JsonDocument& document, bool pretty);

    /// Parses the stream up to its end or to a NUL. A text that is no JSON leaves the document as it was, with the
    /// error in its parse result.
    static wistream& read(wistream& stream, JsonDocument& document);

    /// The same for a text that keeps the rules. The others throw before a value is made: `std::length_error` above a
    /// limit, `std::invalid_argument` for what a strict reader refuses.
    static wistream& read(wistream& stream, JsonDocument& document, const ReadRules& rules);

    /// Holds a text against the rules, and throws as `read` does. What stands in it behind an error is not looked at.
    static void check(const wstring& text, const ReadRules& rules);
};

} // namespace vrx
