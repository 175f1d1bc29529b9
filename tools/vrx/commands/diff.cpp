#include "commands/commands.h"
#include "comparison/inputs.h"
#include "console/console.h"
#include "json/utf.h"
#include "measures.h"
#include "mp/narrow.h"
#include "printing/escaped.h"
#include "printing/scalar_text.h"

#include <cmath>
#include <cstdlib>
#include <iostream>

namespace tool
{

namespace
{

using comparison::Difference;

double toleranceOf(const std::string& text)
{
    char* end = nullptr;
    const double tolerance = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !std::isfinite(tolerance) || tolerance < 0)
    {
        throw UsageError("no tolerance: " + text);
    }
    return tolerance;
}

std::string textOf(const Difference& difference)
{
    if (difference.more != 0)
    {
        return "... " + counted(difference.more) + " more";
    }
    if (difference.a == nullptr || difference.b == nullptr)
    {
        return difference.a == nullptr ? "only in B: " + printing::briefText(*difference.b)
                                       : "only in A: " + printing::briefText(*difference.a);
    }
    return printing::briefText(*difference.a) + " -> " + printing::briefText(*difference.b);
}

void printLine(const comparison::Line& line)
{
    std::cout << line.message;
    if (line.inTree == nullptr)
    {
        std::cout << (line.message.empty() ? "" : ": ") << line.text << '\n';
        return;
    }
    const Difference& difference = *line.inTree;
    std::cout << (line.message.empty() ? "" : " ") << (difference.pointer.empty() ? "(root)" : difference.pointer)
              << (difference.isOnlyInB() ? " in B" : "");
    if (difference.id != nullptr)
    {
        std::cout << " (id " << printing::briefText(*difference.id) << ')';
    }
    std::cout << ": " << textOf(difference) << '\n';
}

// Numbers that JSON has no text for, and containers, are told as texts.
std::string jsonOf(const vrx::JsonValue& value)
{
    const bool isText = value.IsObject() || value.IsArray() || (value.IsDouble() && !std::isfinite(value.GetDouble()));
    return isText ? '"' + printing::briefText(value) + '"' : printing::scalarText(value);
}

void addMember(std::string& object, const std::string& key, const std::string& value)
{
    object += (object.empty() ? "\"" : ", \"") + key + "\": " + value;
}

// The texts are escaped already, or ASCII of ours.
std::string jsonLine(const comparison::Line& line)
{
    std::string object;
    if (!line.message.empty())
    {
        addMember(object, "message", '"' + line.message + '"');
    }
    if (line.inTree == nullptr)
    {
        addMember(object, "text", '"' + line.text + '"');
        return '{' + object + '}';
    }
    const Difference& difference = *line.inTree;
    addMember(object, "pointer", '"' + difference.pointer + '"');
    addMember(object, "pointer_in", difference.isOnlyInB() ? "\"B\"" : "\"A\"");
    if (difference.id != nullptr)
    {
        addMember(object, "id", jsonOf(*difference.id));
    }
    if (difference.a != nullptr)
    {
        addMember(object, "a", jsonOf(*difference.a));
    }
    if (difference.b != nullptr)
    {
        addMember(object, "b", jsonOf(*difference.b));
    }
    if (difference.more != 0)
    {
        addMember(object, "more", std::to_string(difference.more));
    }
    return '{' + object + '}';
}

void tellIfCut(bool isCut, const std::string& file)
{
    if (isCut)
    {
        std::cerr << "vrx: " << printing::harmless(mp::toWide(file)) << ": the recording is cut\n";
    }
}

int diff(Arguments& arguments)
{
    constexpr const char* kTolerance = "1e-9";
    comparison::Rules rules;
    rules.tolerance = toleranceOf(arguments.takeOption("--tolerance", kTolerance));
    rules.all = arguments.takeFlag("--all");
    for (const std::string& key : arguments.takeAll("--ignore"))
    {
        rules.ignoredKeys.insert(json::fromUtf8(key));
    }
    const bool asJson = arguments.takeFlag("--json");
    const std::uint64_t limit = sizeOf(arguments.takeOption("--limit", "4G"));
    const std::string a = arguments.takeOperand("A");
    const std::string b = arguments.takeOperand("B");
    arguments.end();

    console::setBinaryOutput();
    bool isEqual = true;
    const comparison::Cuts cuts = comparison::compareInputs(a, b, rules, limit, [&](const comparison::Line& line) {
        if (asJson)
        {
            std::cout << (isEqual ? "[\n  " : ",\n  ") << jsonLine(line);
        }
        else
        {
            printLine(line);
        }
        isEqual = false;
    });
    if (asJson)
    {
        std::cout << (isEqual ? "[]\n" : "\n]\n");
    }
    tellIfCut(cuts.a, a);
    tellIfCut(cuts.b, b);
    return isEqual ? kSuccess : kFindings;
}

} // namespace

const Command kDiff = {"diff", "tells what differs between two captures, messages or objects",
                       R"(usage: vrx diff [OPTION...] A B
Tells what differs between two captures, messages or objects, one difference on a line: the place as a JSON pointer in
A, or in B for what only B has, then what A and B have there. Messages of captures are paired by sender, class and
block: equal ones first, and the others in their order. What stands behind a binary form counts, too. Elements of an array are paired by their ids (id, persistent_id or guid) where all are objects with an id of their own, and by place
otherwise. Names and compression of buffers are no difference, their content is. Integers must be equal; if one number
is a double, they are equal when they differ by no more than the tolerance, or by that part of the larger of the two.
The exit code is 1 when there are differences.

  --tolerance NUMBER  another tolerance than 1e-9
  --ignore KEY        members of this name are not compared, such as guid, which a translator may make anew each time;
                      may be given again
  --all               progress and log messages and the times of messages, too, and each element that differs
  --json              as a JSON array, for programs
  --limit SIZE        the most bytes that are read into memory or decompressed at once (4G, of text 256M))",
                       diff};

} // namespace tool
