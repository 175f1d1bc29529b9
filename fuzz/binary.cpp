#include "fuzz/support.h"
#include "fuzz/tree_mutator.h"

#include <sstream>

using vrx::JsonBinaryIO;
using vrx::JsonDocument;

const fuzz::InputForm fuzz::kInputForm{false, false};

// A stream takes only the first value of its bytes, and must say the same about it as the bytes do.
static void compareStreamForm(const std::string& form, const JsonDocument& document, bool valid)
{
    std::istringstream stream(form);
    JsonDocument streamed;
    bool streamValid = true;
    try
    {
        JsonBinaryIO::read(stream, streamed, streamed.GetAllocator());
    }
    catch (const std::logic_error&)
    {
        streamValid = false;
    }
    fuzz::require(streamValid == valid && fuzz::encoded(streamed) == fuzz::encoded(document));
}

// Limits hold at just what a tree has, in both forms, and a strict reader says the same of both.
static void compareRules(const JsonDocument& document, const vrx::Bytes& form)
{
    JsonDocument again;
    const auto readForm = [&](const vrx::ReadRules& rules) {
        JsonBinaryIO::read(form.data(), form.size(), again, again.GetAllocator(), rules);
    };
    fuzz::requireLimits(document, readForm);
    const fuzz::EVerdict strict = fuzz::verdictOf(readForm, vrx::ReadRules::strict());
    fuzz::require(strict != fuzz::EVerdict::Taken || fuzz::encoded(again) == form);

    const std::optional<mp::wstring> text = fuzz::textOf(document);
    JsonDocument byText;
    if (text && fuzz::parses(*text, byText))
    {
        const auto readText = [&](const vrx::ReadRules& rules) { vrx::JsonTextIO::check(*text, rules); };
        fuzz::requireLimits(document, readText);
        fuzz::require(fuzz::verdictOf(readText, vrx::ReadRules::strict()) == strict);
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string form(data, data + size);
    JsonDocument document;
    const bool valid = fuzz::decodes(form.data(), form.size(), document);
    compareStreamForm(form, document, valid);

    // What a failure leaves is a tree like any other.
    const vrx::Bytes first = fuzz::encoded(document);
    JsonDocument again;
    fuzz::require(fuzz::decodes(first.data(), first.size(), again));
    fuzz::require(fuzz::encoded(again) == first);
    compareRules(document, first);
    return 0;
}
