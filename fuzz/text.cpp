#include "fuzz/support.h"
#include "vrx_api/json/json_text_io.h"

using vrx::JsonDocument;
using vrx::JsonTextIO;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    mp::wistringstream stream(fuzz::textOf(data, size));
    JsonDocument document;
    JsonTextIO::read(stream, document);
    if (document.HasParseError())
    {
        fuzz::require(document.IsNull());
        return 0;
    }
    for (const bool pretty : {false, true})
    {
        mp::wstringstream written;
        try
        {
            JsonTextIO::write(written, document, pretty);
        }
        catch (const std::runtime_error&)
        {
            // A number of the text was beyond the doubles.
            continue;
        }
        JsonDocument again;
        JsonTextIO::read(written, again);
        // The last digit of a double may differ, but no kind, no length and no order: the binary form keeps its size.
        fuzz::require(!again.HasParseError() && fuzz::encoded(again).size() == fuzz::encoded(document).size());
    }
    return 0;
}
