#pragma once

#include "mp/narrow.h"
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

/// Narrow text of the kernel is UTF-8, or what the file has: when it is no UTF-8 it counts as ISO 8859-1.
inline TCollection_ExtendedString extended(const char* text)
{
    const mp::wchar replacement = 0xFFFD;
    const bool isUtf8 = mp::toWide(text).find(replacement) == mp::wstring::npos;
    if (isUtf8)
    {
        return {text, true};
    }
    TCollection_ExtendedString result;
    for (; *text != '\0'; ++text)
    {
        result += TCollection_ExtendedString(static_cast<Standard_ExtCharacter>(static_cast<unsigned char>(*text)));
    }
    return result;
}

/// A null handle is an empty text.
inline mp::wstring wide(const Handle(TCollection_HAsciiString) & text)
{
    return text.IsNull() ? mp::wstring() : wide(extended(text->ToCString()));
}

} // namespace occt_text
