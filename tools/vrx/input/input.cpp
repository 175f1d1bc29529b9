#include "input/input.h"

#include "arguments.h"
#include "console/console.h"
#include "input/content.h"
#include "input/recorded_items.h"
#include "json/member.h"
#include "mp/narrow.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>
#include <streambuf>
#include <utility>

namespace input
{

namespace
{

using Take = std::function<void(Item&)>;

// A stream over bytes that stay where they are.
class BytesStream : private std::streambuf, public std::istream
{
public:
    explicit BytesStream(std::vector<char>& bytes)
        : std::istream(static_cast<std::streambuf*>(this))
    {
        setg(bytes.data(), bytes.data(), bytes.data() + bytes.size());
    }
};

// Appends the rest of a stream.
void readRest(std::istream& stream, std::vector<char>& bytes, std::uint64_t limit)
{
    constexpr std::size_t kPiece = std::size_t{1} << 20U;
    while (stream && bytes.size() <= limit)
    {
        const std::size_t size = bytes.size();
        bytes.resize(size + std::max(kPiece, size / 2));
        stream.read(&bytes[size], static_cast<std::streamsize>(bytes.size() - size));
        bytes.resize(size + static_cast<std::size_t>(stream.gcount()));
    }
    if (stream.bad())
    {
        throw tool::InputError("it cannot be read");
    }
    if (bytes.size() > limit)
    {
        throw tool::InputError("more than " + std::to_string(limit) + " bytes; --limit raises that");
    }
}

Recording readBytes(std::vector<char> bytes, const Take& take, std::uint64_t limit)
{
    if (isCapture(bytes.data(), bytes.size()))
    {
        return readCapture([&bytes] { return std::make_unique<BytesStream>(bytes); }, take, limit);
    }
    Item item;
    item.number = 1;
    setFile(item, std::move(bytes), limit);
    take(item);
    return {};
}

Recording readFile(const std::string& name, std::istream& file, const Take& take, std::uint64_t limit)
{
    constexpr std::size_t kHead = 8;
    std::vector<char> bytes(kHead);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    // A capture may be larger than memory; only one that comes through a pipe has to be held.
    if (isCapture(bytes.data(), bytes.size()) && file.seekg(0))
    {
        return readCapture([&name] { return std::make_unique<std::ifstream>(name, std::ios::binary); }, take, limit);
    }
    if (file.bad())
    {
        throw tool::InputError("it cannot be read");
    }
    if (file.fail() && !file.eof())
    {
        file.clear();
    }
    readRest(file, bytes, limit);
    return readBytes(std::move(bytes), take, limit);
}

// A file that exists wins over a buffer of its name.
Recording readNamed(const std::string& what, const Take& take, std::uint64_t limit)
{
    errno = 0;
    std::ifstream file(what, std::ios::binary);
    if (file)
    {
        return readFile(what, file, take, limit);
    }
    if (errno != 0 && errno != ENOENT)
    {
        throw tool::InputError(std::strerror(errno)); // NOLINT(concurrency-mt-unsafe): there is one thread
    }
    Item item;
    item.number = 1;
    item.head.bufferName = mp::toWide(what);
    std::vector<char> bytes;
    const bool isPath = what.empty() || what.find_first_of("/\\") != std::string::npos;
    if (isPath || !readSharedBuffer(item.head.bufferName, bytes, limit))
    {
        throw tool::InputError(isPath ? "there is no such file" : "there is no such file, and no such buffer");
    }
    setBuffer(item, std::move(bytes), limit);
    take(item);
    return {};
}

Recording readStandardInput(const Take& take, std::uint64_t limit)
{
    console::setBinaryInput();
    std::vector<char> bytes;
    readRest(std::cin, bytes, limit);
    return readBytes(std::move(bytes), take, limit);
}

} // namespace

const vrx::JsonValue* Item::object() const
{
    const vrx::JsonValue* const binary = json::member(message, WIDE("binary"));
    if (head.kind == vrx::EMessageKind::Envelope && (binary == nullptr || !binary->IsTrue()))
    {
        return json::member(message, WIDE("exchange_object_data"));
    }
    return form ? &*form : nullptr;
}

const vrx::JsonValue* Item::root() const
{
    const vrx::JsonValue* const found = object();
    return found != nullptr || message.IsNull() ? found : &message;
}

Recording readItems(const std::string& what, const Take& take, std::uint64_t limit)
{
    try
    {
        return what == "-" ? readStandardInput(take, limit) : readNamed(what, take, limit);
    }
    catch (const tool::InputError& error)
    {
        throw tool::InputError((what == "-" ? "standard input" : what) + ": " + error.what());
    }
}

} // namespace input
