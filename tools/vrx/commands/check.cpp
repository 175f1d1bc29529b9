#include "checking/import_checker.h"
#include "classes/class_guess.h"
#include "classes/class_named.h"
#include "commands/commands.h"
#include "input/input.h"
#include "json/utf.h"
#include "measures.h"
#include "mp/narrow.h"
#include "printing/escaped.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <set>

namespace tool
{

namespace
{

using checking::Finding;

constexpr std::size_t kMostOfACode = 20;

std::set<checking::ECode> takeIgnored(Arguments& arguments)
{
    std::set<checking::ECode> ignored;
    for (const std::string& name : arguments.takeAll("--ignore"))
    {
        const auto* const found = std::find(std::begin(checking::kCodeNames), std::end(checking::kCodeNames), name);
        if (found == std::end(checking::kCodeNames))
        {
            throw UsageError("unknown code: " + name);
        }
        ignored.insert(static_cast<checking::ECode>(found - std::begin(checking::kCodeNames)));
    }
    return ignored;
}

checking::KnownKeys takeKnown(Arguments& arguments)
{
    checking::KnownKeys known;
    for (const std::string& name : arguments.takeAll("--known"))
    {
        const std::size_t slash = name.find('/');
        if (name.empty() || (slash != std::string::npos && classes::named(name.substr(0, slash)) == nullptr))
        {
            throw UsageError("unknown class: " + name.substr(0, slash));
        }
        known.add(name);
    }
    return known;
}

const vrx::ClassShape* takeClass(Arguments& arguments)
{
    const std::string name = arguments.takeOption("--class", "");
    const vrx::ClassShape* const found = name.empty() ? nullptr : classes::named(name);
    if (!name.empty() && found == nullptr)
    {
        throw UsageError("unknown class: " + name);
    }
    return found;
}

// Of an object without a message around it; null for what has one.
const vrx::ClassShape* classAlone(const input::Item& item, const vrx::ClassShape* told)
{
    if (!item.text.empty() || item.object() == nullptr || told != nullptr)
    {
        return told;
    }
    const vrx::ClassShape* const guessed = classes::ofObject(classes::guessed(*item.object()));
    if (guessed == nullptr)
    {
        throw InputError("the class of the object is not known; --class NAME tells it");
    }
    return guessed;
}

class Lines
{
public:
    static void give(const std::string& file, const Finding& finding)
    {
        std::cout << printing::escaped(mp::toWide(file)) << ": "
                  << (finding.place.message == 0 ? "the whole" : "message " + std::to_string(finding.place.message))
                  << (finding.place.pointer.empty() ? "" : " " + printing::escaped(finding.place.pointer)) << ": "
                  << checking::nameOf(finding.code) << ": " << finding.sentence << '\n';
    }

    static void end(std::size_t count)
    {
        std::cout << (count == 0   ? "no finding"
                      : count == 1 ? "1 finding"
                                   : std::to_string(count) + " findings")
                  << '\n';
    }
};

class JsonArray
{
public:
    void give(const std::string& file, const Finding& finding)
    {
        const mp::wstring code = mp::toWide(std::string(checking::nameOf(finding.code)));
        std::cout << (m_isBegun ? ",\n" : "[\n") << R"({"file":)" << printing::quoted(mp::toWide(file))
                  << R"(,"message":)" << finding.place.message << R"(,"place":)"
                  << printing::quoted(finding.place.pointer) << R"(,"code":)" << printing::quoted(code)
                  << R"(,"sentence":)" << printing::quoted(json::fromUtf8(finding.sentence)) << '}';
        m_isBegun = true;
    }

    void end(std::size_t) const { std::cout << (m_isBegun ? "\n]\n" : "[]\n"); }

private:
    bool m_isBegun = false;
};

struct Wish
{
    std::set<checking::ECode> ignored;
    checking::KnownKeys known;
    const vrx::ClassShape* alone = nullptr;
    std::size_t mostOfACode = kMostOfACode;
    std::uint64_t limit = input::kDefaultLimit;
};

void tell(const std::string& sentence)
{
    std::cout.flush();
    std::cerr << "vrx: " << printing::harmless(mp::toWide(sentence)) << '\n';
}

// False for what cannot be read; the others are checked all the same.
bool checkOne(const std::string& file, const Wish& wish, checking::Findings& findings)
{
    try
    {
        checking::ImportChecker checker(wish.known, findings);
        const input::Recording recording = input::readItems(
            file, [&](const input::Item& item) { checker.take(item, classAlone(item, wish.alone)); }, wish.limit);
        checker.end(recording);
        if (recording.isCut)
        {
            tell(file + ": the recording was cut short");
        }
        return true;
    }
    catch (const InputError& error)
    {
        tell(error.what());
        return false;
    }
}

template <class Output>
int checkAll(Arguments& arguments, const Wish& wish)
{
    std::vector<std::string> files;
    do
    {
        files.push_back(arguments.takeOperand("what to check"));
    } while (arguments.hasOperand());
    arguments.end();

    Output output;
    std::size_t count = 0;
    bool isAllRead = true;
    for (const std::string& file : files)
    {
        checking::Findings findings([&](const Finding& finding) { output.give(file, finding); }, wish.ignored,
                                    wish.mostOfACode);
        isAllRead = checkOne(file, wish, findings) && isAllRead;
        count += findings.count();
    }
    output.end(count);
    return !isAllRead ? kUnreadable : count == 0 ? kSuccess : kFindings;
}

int check(Arguments& arguments)
{
    Wish wish;
    wish.ignored = takeIgnored(arguments);
    wish.known = takeKnown(arguments);
    wish.alone = takeClass(arguments);
    wish.limit = sizeOf(arguments.takeOption("--limit", "4G"));
    wish.mostOfACode = arguments.takeFlag("--all") ? checking::Findings::kAll : kMostOfACode;
    return arguments.takeFlag("--json") ? checkAll<JsonArray>(arguments, wish) : checkAll<Lines>(arguments, wish);
}

} // namespace

const Command kCheck = {"check", "finds what is wrong in a capture, a message or an object",
                        R"(usage: vrx check [OPTION...] WHAT...
Finds what is wrong in captures, messages, objects and buffers; - is standard input.

  --all              each finding; otherwise 20 of a code in each message, and how many more there are
  --class NAME       the class of an object without a message around it: ExcBlock, or exc_block_geometry
  --ignore CODE      no findings of this code; may be given again
  --json             an array of objects with file, message, place, code and sentence
  --known CLASS/KEY  a key that a program adds of its own; CLASS alone: an exchange object; may be given again
  --limit SIZE       the most bytes that are read into memory or decompressed at once (4G)

A finding names the message, which counts from 1, a JSON pointer into its exchange object or into itself, and a code:

  not-a-message    no JSON, or no command, answer or exchange object
  unknown-object   a name that no class has, or an object that tells no class
  no-answer        a command without an answer
  missing-buffer   a buffer that is not there
  damaged-buffer   a buffer that can't be decoded
  unloaded-buffer  a buffer that nobody had loaded when the recording ended
  unknown-key      a key that is not read
  duplicate-key    a key that stands there before
  missing-key      a key that a reader wants
  not-read         a key that is passed over, as another one that must be true is not
  wrong-kind       a value of another kind than is read
  wrong-number     a number that a reader does not take: 1 for 1.0, 1.0 for 1, or one out of range
  wrong-size       an array of another size than is read
  unknown-name     a name outside of its table
  index-outside    an index outside of its list
  duplicate-id     an id that another object has, too
  dangling-id      an id that no object has
  structure-cycle  a block that holds itself

Exit code: 0 for no finding, 1 for findings, 2 for a wrong call, 3 for what cannot be read; other files
are checked all the same.)",
                        check};

} // namespace tool
