#pragma once

#include "mp/wide.h"

#include <rapidjson/encodings.h>
#include <rapidjson/stringbuffer.h>

#include <string>

/// A text as JSON wants it on every system; a lone surrogate becomes U+FFFD.
inline std::string utf8(const mp::wstring& text)
{
    rapidjson::StringBuffer bytes;
    for (rapidjson::GenericStringStream<rapidjson::UTF16<mp::wchar>> units(text.c_str()); units.Peek() != 0;)
    {
        unsigned character = 0;
        const bool isWhole = rapidjson::UTF16<mp::wchar>::Decode(units, &character);
        rapidjson::UTF8<>::Encode(bytes, isWhole ? character : 0xFFFD);
    }
    return {bytes.GetString(), bytes.GetSize()};
}
