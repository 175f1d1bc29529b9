#include "buffers/buffers.h"

#include "classes/class_guess.h"
#include "json/parse.h"
#include "printing/escaped.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/json/binary_tag.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace buffers
{

namespace
{

constexpr std::size_t kPeek = std::size_t{64} << 10U;

// What can be decompressed of the beginning of a stream.
std::vector<char> decompressedBeginning(std::vector<char>& bytes)
{
    constexpr int kAnyHeader = 15 + 32;
    std::vector<char> plain(kPeek);
    z_stream stream{};
    if (inflateInit2(&stream, kAnyHeader) != Z_OK)
    {
        return {};
    }
    const std::unique_ptr<z_stream, int (*)(z_stream*)> end(&stream, inflateEnd);
    stream.next_in = reinterpret_cast<Bytef*>(bytes.data()); // NOLINT: zlib's bytes are unsigned
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(plain.data()); // NOLINT
    stream.avail_out = static_cast<uInt>(plain.size());
    inflate(&stream, Z_SYNC_FLUSH);
    plain.resize(plain.size() - stream.avail_out);
    return plain;
}

template <class T>
bool take(const std::vector<char>& bytes, std::uint64_t& place, T& value)
{
    if (place > bytes.size() || bytes.size() - place < sizeof(T))
    {
        return false;
    }
    std::memcpy(&value, &bytes[place], sizeof(T));
    place += sizeof(T);
    return true;
}

// Leaves the place behind the value, or where no more can be taken. False for what is no value.
bool skipValue(const std::vector<char>& bytes, std::uint64_t& place)
{
    vrx::BinaryTag tag{};
    std::uint64_t size = 0;
    if (!take(bytes, place, tag))
    {
        return false;
    }
    switch (tag)
    {
    case vrx::BinaryTag::Null:
    case vrx::BinaryTag::False:
    case vrx::BinaryTag::True:
        return true;
    case vrx::BinaryTag::Int:
    case vrx::BinaryTag::Uint:
        place += sizeof(std::uint32_t);
        return true;
    case vrx::BinaryTag::Int64:
    case vrx::BinaryTag::Uint64:
    case vrx::BinaryTag::Double:
        place += sizeof(std::uint64_t);
        return true;
    default:
        break;
    }
    // Nothing behind the beginning is looked at, so that a larger size need not be told apart.
    const bool isString = tag == vrx::BinaryTag::String;
    const bool isThere = take(bytes, place, size);
    place += std::min<std::uint64_t>(size, kPeek) * (isString ? sizeof(mp::wchar) : 1);
    return isThere;
}

// The names of an object's members, up to the end of what is known of its form.
std::vector<mp::wstring> keysOf(const std::vector<char>& form)
{
    std::vector<mp::wstring> keys;
    std::uint64_t place = vrx::kTagSize + vrx::kSizeSize;
    for (;;)
    {
        vrx::BinaryTag tag{};
        std::uint64_t size = 0;
        if (!take(form, place, tag) || tag != vrx::BinaryTag::String || !take(form, place, size) ||
            size > (form.size() - place) / sizeof(mp::wchar))
        {
            return keys;
        }
        mp::wstring key(static_cast<std::size_t>(size), mp::wchar{});
        std::memcpy(key.data(), form.data() + place, key.size() * sizeof(mp::wchar));
        keys.push_back(std::move(key));
        place += size * sizeof(mp::wchar);
        if (!skipValue(form, place))
        {
            return keys;
        }
    }
}

} // namespace

bool isBufferName(const std::string& name)
{
    constexpr const char* kForm = "xxxxxxxx-xxxx-4xxx-vxxx-xxxxxxxxxxxx";
    const auto fits = [](char c, char form) {
        const std::string allowed = form == 'x' ? "0123456789abcdef" : form == 'v' ? "89ab" : std::string(1, form);
        return allowed.find(c) != std::string::npos;
    };
    return name.size() == std::strlen(kForm) && std::equal(name.begin(), name.end(), kForm, fits);
}

std::string guessedClass(const std::string& name)
{
    std::vector<char> bytes = beginning(name, kPeek);
    if (bytes.empty())
    {
        return "?";
    }
    if (vrx::Compressor::isCompressed(bytes.data(), bytes.size()))
    {
        bytes = decompressedBeginning(bytes);
    }
    if (!json::isBinaryForm(bytes.data(), bytes.size()))
    {
        return "bodies?";
    }
    const mp::wstring guess = classes::guessed(keysOf(bytes));
    return guess.empty() ? "?" : printing::escaped(guess) + '?';
}

} // namespace buffers
