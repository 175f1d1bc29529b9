#include "input/content.h"

#include "arguments.h"
#include "input/first_bytes.h"
#include "input/text_bytes.h"
#include "json/member.h"
#include "json/parse.h"
#include "mp/shared_buffer.h"
#include "printing/escaped.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/json/binary_tag.h"

#include <cstring>
#include <exception>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace input
{

namespace
{

void requireSize(std::uint64_t size, std::uint64_t limit)
{
    if (size > limit)
    {
        throw tool::InputError(std::to_string(size) + " bytes are above the limit of " + std::to_string(limit) +
                               "; --limit raises it");
    }
}

vrx::Bytes decompressed(const std::vector<char>& bytes, std::uint64_t limit)
{
    vrx::Bytes plain;
    try
    {
        vrx::Compressor::decompress(plain, bytes.data(), bytes.size(), vrx::ReadRules::upToPlainBytes(limit));
    }
    catch (const std::length_error& error)
    {
        throw tool::InputError(std::string(error.what()) + "; --limit raises it");
    }
    catch (const std::runtime_error& error)
    {
        throw tool::InputError("damaged compressed data: " + std::string(error.what()));
    }
    return plain;
}

// Takes the bytes, and gives the plain ones to `use`.
template <class Use>
void setContent(Item& item, std::vector<char> bytes, std::uint64_t limit, const Use& use)
{
    requireSize(bytes.size(), limit);
    item.content = std::move(bytes);
    item.isCompressed = vrx::Compressor::isCompressed(item.content.data(), item.content.size());
    vrx::Bytes unpacked;
    std::string_view plain(item.content.data(), item.content.size());
    if (item.isCompressed)
    {
        unpacked = decompressed(item.content, limit);
        plain = {unpacked.data(), unpacked.size()};
    }
    item.plainSize = plain.size();
    use(plain);
}

void setForm(Item& item, std::string_view plain)
{
    item.form = json::parseBinaryForm(plain.data(), plain.size());
    constexpr std::size_t kHead = vrx::kTagSize + vrx::kSizeSize;
    if (json::isBinaryForm(plain.data(), plain.size()) && plain.size() >= kHead)
    {
        std::uint64_t inner = 0;
        std::memcpy(&inner, plain.data() + vrx::kTagSize, sizeof(inner));
        item.sizeBehindForm = plain.size() - kHead - inner;
    }
}

// The bodies of a block are in the modelling kernel's own format, and the message itself has the block's object then.
bool holdsBodies(const Item& item)
{
    const vrx::JsonValue* const data = json::member(item.message, WIDE("exchange_object_data"));
    return data != nullptr && data->IsObject();
}

void takeSharedBuffer(Item& item, std::uint64_t limit)
{
    if (item.head.bufferName.empty())
    {
        return;
    }
    try
    {
        std::vector<char> bytes;
        if (readSharedBuffer(item.head.bufferName, bytes, limit))
        {
            setBuffer(item, std::move(bytes), limit);
            return;
        }
        item.buffer = EBuffer::Missing;
    }
    catch (const tool::InputError& error)
    {
        item.buffer = EBuffer::Damaged;
        item.damage = error.what();
    }
}

// A file's limit depends on what it holds, which its first plain bytes tell.
std::uint64_t limitOf(const std::vector<char>& bytes, std::uint64_t limit)
{
    constexpr std::size_t kHead = vrx::kTagSize;
    const std::string_view all(bytes.data(), bytes.size());
    const std::string head = vrx::Compressor::isCompressed(all.data(), all.size()) ? firstPlainBytes(all, kHead)
                                                                                   : std::string(all.substr(0, kHead));
    if (json::isBinaryForm(head.data(), head.size()))
    {
        return limit;
    }
    if (head.compare(0, 2, std::string(2, '\0')) == 0)
    {
        throw tool::InputError("neither a text nor a binary form");
    }
    return limit == kDefaultLimit ? kDefaultTextLimit : limit;
}

// A text that is no message is an object's own.
void setText(Item& item, std::string_view bytes, std::uint64_t limit)
{
    mp::wstring text = textOfBytes(bytes);
    vrx::JsonDocument document = json::parse(text);
    item.head = vrx::peekEnvelope(text);
    if (item.head.kind == vrx::EMessageKind::Unknown)
    {
        item.form = std::move(document);
        return;
    }
    item.text = std::move(text);
    item.message = std::move(document);
    item.content.clear();
    item.isCompressed = false;
    item.plainSize = 0;
    takeSharedBuffer(item, limit);
}

} // namespace

void setMessage(Item& item, mp::wstring text)
{
    try
    {
        item.message = json::parse(text);
        item.head = vrx::peekEnvelope(text);
    }
    catch (const tool::InputError& error)
    {
        item.damage = error.what();
    }
    item.text = std::move(text);
}

void setBuffer(Item& item, std::vector<char> bytes, std::uint64_t limit)
{
    item.buffer = EBuffer::Present;
    const bool bodies = holdsBodies(item);
    setContent(item, std::move(bytes), limit, [&](std::string_view plain) {
        if (bodies)
        {
            return;
        }
        const bool isAlone = item.head.kind == vrx::EMessageKind::Unknown;
        if (!isAlone || json::isBinaryForm(plain.data(), plain.size()))
        {
            setForm(item, plain);
        }
    });
}

bool readSharedBuffer(const mp::wstring& name, std::vector<char>& bytes, std::uint64_t limit)
{
    try
    {
        mp::SharedBuffer<char> buffer;
        if (!buffer.openExisting(name))
        {
            return false;
        }
        requireSize(buffer.size(), limit);
        const mp::SharedCopy content = buffer.copy(limit);
        requireSize(buffer.size(), limit); // it may have grown
        bytes.assign(content.data(), content.data() + content.size());
        return true;
    }
    catch (const mp::SharedMemoryException& error)
    {
        throw tool::InputError("shared buffer " + printing::escaped(name) + ": " + error.what());
    }
}

void setFile(Item& item, std::vector<char> bytes, std::uint64_t limit)
{
    const std::uint64_t ownLimit = limitOf(bytes, limit);
    setContent(item, std::move(bytes), ownLimit, [&](std::string_view plain) {
        if (json::isBinaryForm(plain.data(), plain.size()))
        {
            setForm(item, plain);
        }
        else
        {
            setText(item, plain, limit);
        }
    });
}

} // namespace input
