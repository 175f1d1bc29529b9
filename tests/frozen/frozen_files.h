#pragma once

#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

#include <rapidjson/stringbuffer.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace test
{

/// The shared memory of the frozen envelopes.
inline const std::string kFrozenBuffer = "01234567-89ab-4cde-8f01-23456789abcd";

template <class From, class To, class Unit>
auto transcoded(const Unit* text)
{
    rapidjson::GenericStringStream<From> in(text);
    rapidjson::GenericStringBuffer<To> out;
    while (in.Peek() != 0)
    {
        rapidjson::Transcoder<From, To>::Transcode(in, out);
    }
    return std::basic_string<typename To::Ch>(out.GetString(), out.GetSize() / sizeof(typename To::Ch));
}

/// The files are UTF-8 on every system.
inline std::string toUtf8(const mp::wstring& text)
{
    return transcoded<vrx::JsonEncoding, rapidjson::UTF8<>>(text.c_str());
}

inline mp::wstring fromUtf8(const std::string& text)
{
    return transcoded<rapidjson::UTF8<>, vrx::JsonEncoding>(text.c_str());
}

inline vrx::JsonDocument treeOfUtf8(const std::string& text)
{
    mp::wistringstream stream(fromUtf8(text));
    vrx::JsonDocument document;
    vrx::JsonTextIO::read(stream, document);
    return document;
}

/// As a message has its members.
inline std::string prettyText(const vrx::JsonDocument& document)
{
    mp::wostringstream stream;
    vrx::JsonTextIO::write(stream, document, true);
    return toUtf8(stream.str());
}

inline std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
    {
        throw std::runtime_error(path.string() + " cannot be read");
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace test
