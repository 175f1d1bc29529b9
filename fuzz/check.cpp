#include "arguments.h"
#include "checking/tree_checker.h"
#include "classes/class_named.h"
#include "fuzz/support.h"
#include "fuzz/tree_mutator.h"
#include "json/parse.h"
#include "json/utf.h"

#include <string>
#include <vector>

const fuzz::InputForm fuzz::kInputForm{false, true};

namespace
{

std::vector<std::string> findingsIn(const vrx::JsonValue& tree, const vrx::ClassShape& shape)
{
    std::vector<std::string> lines;
    checking::Findings findings([&lines](const checking::Finding& finding) {
        fuzz::require(finding.place.pointer.empty() || finding.place.pointer.front() == '/');
        // What is printed has no control characters.
        for (const char c : finding.sentence)
        {
            fuzz::require(static_cast<unsigned char>(c) >= ' ' && c != '\x7F');
        }
        lines.push_back(std::string(nameOf(finding.code)) + ' ' + json::toUtf8(finding.place.pointer) + ' ' +
                        finding.sentence);
    });
    checking::Ids ids(findings);
    const checking::KnownKeys known;
    checking::TreeChecker checker(known, findings, ids);
    checker.check(tree, shape, 1);
    ids.endObject();
    ids.endImport(true);
    return lines;
}

// The same is found in a tree, however it came.
void checkTree(const vrx::JsonDocument& tree, const vrx::ClassShape& shape)
{
    const vrx::Bytes form = fuzz::encoded(tree);
    vrx::JsonDocument again;
    fuzz::require(fuzz::decodes(form.data(), form.size(), again));
    fuzz::require(findingsIn(tree, shape) == findingsIn(again, shape));
}

} // namespace

// The name of a class and a line feed, then a JSON text or a binary form.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    const std::size_t nameEnd = input.find('\n');
    const vrx::ClassShape* const shape =
        nameEnd == std::string::npos ? nullptr : classes::named(input.substr(0, nameEnd));
    if (shape == nullptr)
    {
        return -1;
    }
    const char* const content = input.data() + nameEnd + 1;
    const std::size_t contentSize = size - nameEnd - 1;
    try
    {
        checkTree(json::isBinaryForm(content, contentSize) ? json::parseBinaryForm(content, contentSize)
                                                           : json::parse(json::fromUtf8({content, contentSize})),
                  *shape);
    }
    catch (const tool::InputError&)
    {
        return 0;
    }
    return 0;
}
