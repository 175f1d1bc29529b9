#include "fuzz/support.h"

#include <sstream>

using vrx::JsonBinaryIO;
using vrx::JsonDocument;

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
    return 0;
}
