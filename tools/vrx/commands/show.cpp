#include "commands/commands.h"
#include "console/console.h"
#include "console/progress.h"
#include "input/input.h"
#include "json/parse.h"
#include "json/pointer.h"
#include "json/utf.h"
#include "measures.h"
#include "mp/narrow.h"
#include "printing/escaped.h"
#include "printing/item_lines.h"
#include "printing/json_printer.h"
#include "printing/palette.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <optional>

namespace tool
{

namespace
{

// What is asked of each item.
struct Wish
{
    bool summary = false;
    bool raw = false;
    bool all = false;
    std::string onlyClass;
    std::size_t number = 0; // 0: any
    std::optional<json::Pointer> place;
    printing::Palette palette;
};

// "/pointer", "N:/pointer", "N:" or "N".
void readPlace(const std::string& text, Wish& wish)
{
    const std::size_t afterNumber = std::min(text.find_first_not_of("0123456789"), text.size());
    const bool hasNumber = afterNumber != 0 && (afterNumber == text.size() || text[afterNumber] == ':');
    if (hasNumber)
    {
        constexpr int kDecimal = 10;
        wish.number = std::strtoull(text.c_str(), nullptr, kDecimal);
        if (wish.number == 0)
        {
            throw UsageError("messages count from 1: " + text);
        }
    }
    wish.place = json::pointerOf(hasNumber ? text.substr(std::min(afterNumber + 1, text.size())) : text);
}

// An option is never passed over in silence.
void requireSense(const Wish& wish)
{
    if (wish.summary && (wish.raw || wish.place || wish.all))
    {
        throw UsageError("--summary does not go with --raw, --at or --all");
    }
    if (wish.raw && wish.all)
    {
        throw UsageError("--raw does not go with --all: it shortens nothing");
    }
    if (wish.raw && wish.place && (wish.number == 0 || !wish.place->empty()))
    {
        throw UsageError("with --raw, --at takes the number of a message only");
    }
}

bool wantsColor(const std::string& when)
{
    if (when != "always" && when != "never" && when != "auto")
    {
        throw UsageError("--color takes always, never or auto");
    }
    const char* const noColor = std::getenv("NO_COLOR"); // NOLINT(concurrency-mt-unsafe): there is one thread
    return when == "always" || (when == "auto" && console::isOutputTerminal() && (noColor == nullptr || *noColor == 0));
}

void writeRaw(const input::Item& item, const Wish& wish)
{
    const bool wantsBytes = item.text.empty() || (wish.number != 0 && item.buffer == input::EBuffer::Present);
    if (wantsBytes)
    {
        std::cout.write(item.content.data(), static_cast<std::streamsize>(item.content.size()));
    }
    else
    {
        std::cout << json::toUtf8(item.text) << '\n';
    }
}

class Show
{
public:
    explicit Show(const Wish& wish)
        : m_wish(wish)
    {
    }

    void take(const input::Item& item)
    {
        m_progress.step("message " + counted(item.number));
        const bool isWanted = (m_wish.number == 0 || m_wish.number == item.number) &&
                              (m_wish.onlyClass.empty() || m_wish.onlyClass == printing::className(item));
        if (!isWanted || !std::cout)
        {
            return;
        }
        if (m_wish.raw)
        {
            writeRaw(item, m_wish);
            m_found = true;
        }
        else if (m_wish.summary)
        {
            std::cout << printing::summary(item, m_wish.palette) << '\n';
            m_found = true;
        }
        else
        {
            print(item);
        }
    }

    /// Whether there was anything that was asked for.
    bool found() const { return m_found; }

private:
    void print(const input::Item& item)
    {
        const vrx::JsonValue* value = item.root();
        if (m_wish.place)
        {
            value = value == nullptr ? nullptr : json::resolve(*value, *m_wish.place);
            if (value == nullptr)
            {
                return;
            }
        }
        m_found = true;
        const bool isOneValue = m_wish.place && (m_wish.number != 0 || item.sender == input::ESender::Unknown);
        if (!isOneValue && (value == nullptr || item.head.kind != vrx::EMessageKind::Unknown || !item.text.empty()))
        {
            std::cout << printing::heading(item, m_wish.palette) << '\n';
        }
        if (value != nullptr)
        {
            printing::JsonPrinter(std::cout, m_wish.palette, m_wish.all).print(*value);
        }
    }

    const Wish& m_wish;
    bool m_found = false;
    console::Progress m_progress;
};

// How a recording began or ended, of which the capture tells apart from the messages.
void printAside(const char* heading, const std::string& text, const Wish& wish)
{
    if (text.empty())
    {
        return;
    }
    std::cout << wish.palette.heading << heading << wish.palette.end << '\n';
    printing::JsonPrinter(std::cout, wish.palette, wish.all).print(json::parse(json::fromUtf8(text)));
}

int show(Arguments& arguments)
{
    Wish wish;
    wish.summary = arguments.takeFlag("--summary");
    wish.raw = arguments.takeFlag("--raw");
    wish.all = arguments.takeFlag("--all");
    wish.onlyClass = arguments.takeOption("--only", "");
    wish.palette = wantsColor(arguments.takeOption("--color", "auto")) ? printing::kColored : printing::kPlain;
    const std::uint64_t limit = sizeOf(arguments.takeOption("--limit", "4G"));
    const char* const nowhere = "\n";
    const std::string place = arguments.takeOption("--at", nowhere);
    if (place != nowhere)
    {
        readPlace(place, wish);
    }
    requireSense(wish);
    const std::string what = arguments.takeOperand("WHAT");
    arguments.end();

    console::setBinaryOutput();
    Show show(wish);
    const input::Recording recording = input::readItems(
        what, [&show](const input::Item& item) { show.take(item); }, limit);
    if (!wish.summary && !wish.place && !wish.raw && wish.onlyClass.empty())
    {
        printAside("recording started", recording.start, wish);
        printAside("recording ended", recording.end, wish);
    }
    if (recording.isCut)
    {
        std::cerr << "vrx: " << printing::harmless(mp::toWide(what)) << ": the recording is cut\n";
    }
    if (!show.found() && (wish.place || !wish.onlyClass.empty()))
    {
        throw InputError(what + ": nothing of that is in it");
    }
    return kSuccess;
}

} // namespace

const Command kShow = {
    "show", "shows a capture, a message, an object or a buffer as JSON",
    "usage: vrx show [OPTION...] WHAT\n"
    "Shows what crossed as JSON. WHAT is a capture, a file with a message or with an object as text (UTF-8, or "
    "UTF-16),\n"
    "a binary form, compressed or not, the name of a buffer in shared memory, which is left there, or - for standard\n"
    "input. A file that exists wins over a buffer of its name. Each message has a line above it that tells when it "
    "was\n"
    "sent, by whom, its class and the size of its buffer.\n"
    "Long arrays and strings are shortened, so that the output is JSON only with --all. Control characters and what\n"
    "overrides the direction of writing are escaped. Malformed UTF-8 is an error.\n\n"
    "  --summary        one line for each message: class, id, sizes, the longest arrays; a class with a question mark\n"
    "                   is guessed by the keys of an object that stands alone\n"
    "  --at POINTER     the value at a JSON pointer (RFC 6901) in the object; of message N of a capture: N:POINTER,\n"
    "                   or N for all of it\n"
    "  --only CLASS     messages of this class, or of this kind: command, result, info, message\n"
    "  --all            nothing is shortened\n"
    "  --raw            the texts of messages, in UTF-8 and else as they crossed, and of an object alone its bytes;\n"
    "                   with --at N the bytes of the buffer of message N, or its text if it has none\n"
    "  --color WHEN     always, never or auto: on a terminal unless NO_COLOR is set\n"
    "  --limit SIZE     the most bytes that are read into memory or decompressed at once (4G, of text 256M)",
    show};

} // namespace tool
