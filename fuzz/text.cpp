#include "fuzz/support.h"

using vrx::JsonDocument;
using vrx::JsonTextIO;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const mp::wstring text = fuzz::textOf(data, size);
    JsonDocument document;
    const bool isJson = fuzz::parses(text, document);
    const auto read = [&](const vrx::ReadRules& rules) {
        JsonDocument byRules;
        mp::wistringstream stream(text);
        JsonTextIO::read(stream, byRules, rules);
        fuzz::require(byRules.HasParseError() == !isJson && fuzz::encoded(byRules) == fuzz::encoded(document));
    };
    fuzz::require(fuzz::verdictOf(read, vrx::ReadRules::strict()) != fuzz::EVerdict::AboveLimit);
    if (!isJson)
    {
        fuzz::require(document.IsNull());
        return 0;
    }
    fuzz::requireLimits(document, read);
    for (const bool pretty : {false, true})
    {
        const std::optional<mp::wstring> written = fuzz::textOf(document, pretty);
        JsonDocument again;
        // The last digit of a double may differ, but no kind, no length and no order: the binary form keeps its size.
        fuzz::require(!written ||
                      (fuzz::parses(*written, again) && fuzz::encoded(again).size() == fuzz::encoded(document).size()));
    }
    return 0;
}
