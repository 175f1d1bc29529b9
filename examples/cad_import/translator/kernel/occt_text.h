#pragma once

#include "mp/wide.h"

#include <TCollection_ExtendedString.hxx>
#include <TCollection_HAsciiString.hxx>

/// Text of the modelling kernel as model text.
namespace occt_text
{

inline mp::wstring wide(const TCollection_ExtendedString& text)
{
    mp::wstring result;
    result.reserve(static_cast<std::size_t>(text.Length()));
    for (int i = 1; i <= text.Length(); ++i)
    {
        result.push_back(static_cast<mp::wchar>(text.Value(i)));
    }
    return result;
}

/// Narrow text of the kernel is UTF-8; a null handle is an empty text.
inline mp::wstring wide(const Handle(TCollection_HAsciiString) & text)
{
    return text.IsNull() ? mp::wstring() : wide(TCollection_ExtendedString(text->ToCString(), true));
}

} // namespace occt_text
