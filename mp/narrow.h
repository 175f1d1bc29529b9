#pragma once

#include "mp/wide.h"
#include "vrx_api/vrx_api_export.h"

namespace mp
{

/// Text in the narrow code page of the system: UTF-8, and on Windows the active code page.
/// A lone surrogate, or a character that the code page lacks, becomes a replacement character.
VRX_API std::string toNarrow(wstring_view text);

/// The wide text of a narrow text in the system's code page; malformed bytes become U+FFFD.
VRX_API wstring toWide(std::string_view text);

/// Streams wide text into a narrow stream, converted only when it is really written.
struct Narrow
{
    /// What is converted; it must live until then.
    wstring_view text;

    /// Writes the text as `toNarrow` gives it.
    friend std::ostream& operator<<(std::ostream& stream, const Narrow& narrow)
    {
        return stream << toNarrow(narrow.text);
    }
};

} // namespace mp
