#pragma once

#include "mp/wide.h"
#include "vrx_api/exchange/peek_envelope.h"
#include "vrx_api/json/json_value.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What the commands look at: a capture, a message's text, an object's text or binary form, a buffer in shared memory,
/// standard input.
namespace input
{

/// Who sent a message; nobody is known for one that stands alone.
enum class ESender
{
    Unknown,
    Host,
    Translator,
};

/// What became of the shared memory that a message names.
enum class EBuffer
{
    None,    ///< It names none.
    Present, ///< The content is here.
    Missing, ///< There was none of this name.
    Damaged, ///< The content can't be read; `damage` tells why.
};

/// One message, or one object without a message around it.
struct Item
{
    std::size_t number = 0; ///< Counts from 1 within the input.
    ESender sender = ESender::Unknown;
    std::chrono::microseconds time{0}; ///< Since the start of the recording.

    vrx::MessageHead head;     ///< Of a buffer that was named alone, its name only.
    mp::wstring text;          ///< Of a message, as it crossed; empty for an object alone.
    vrx::JsonDocument message; ///< Of a message; null where its text is no JSON, and for an object alone.

    EBuffer buffer = EBuffer::None;
    std::string damage;                    ///< Of the buffer, or of a message that is no JSON; empty for none.
    std::vector<char> content;             ///< The bytes of the buffer, or of an object alone, as they were found.
    bool isCompressed = false;             ///< Whether they are.
    std::uint64_t plainSize = 0;           ///< Of the content when it is not compressed.
    std::uint64_t sizeBehindForm = 0;      ///< Of the plain bytes behind the binary form, which no reader takes.
    std::optional<vrx::JsonDocument> form; ///< The tree of a binary form, or of the text of an object alone; none for
                                           ///< the bodies of a block.
    bool wasUnloaded = false;              ///< Nobody had loaded the buffer when the recording ended.

    /// The exchange object's own JSON, from the message or from the buffer; null for a message that has none.
    const vrx::JsonValue* object() const;

    /// The object, or for want of one the message. Null where there is no JSON at all.
    const vrx::JsonValue* root() const;
};

/// What a capture tells beside its messages; empty for what is none.
struct Recording
{
    bool isCapture = false;
    bool isCut = false; ///< It has no last frame, as that of a recorder that was killed.
    std::string start;  ///< What was started, and when: a JSON text in UTF-8.
    std::string end;    ///< How the translator ended: the same; empty where the recording did not come to it.
};

/// The most bytes that a file, a message or a decompressed content may have, unless the user says otherwise.
constexpr std::uint64_t kDefaultLimit = std::uint64_t{4} << 30U;

/// The same for a text, which takes many times its size in memory.
constexpr std::uint64_t kDefaultTextLimit = std::uint64_t{256} << 20U;

/// Gives each item of an input in its order; `take` may move from it. `what` is a file, the name of a buffer, or "-"
/// for standard input. Throws tool::InputError for what cannot be read at all; the items before a damaged place of a
/// capture have been given then. Memory holds one item at a time.
Recording readItems(const std::string& what, const std::function<void(Item&)>& take,
                    std::uint64_t limit = kDefaultLimit);

} // namespace input
