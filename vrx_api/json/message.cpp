#include "vrx_api/json/message.h"

#include <stdexcept>

namespace vrx
{

void readMessage(wistream& stream, JsonDocument& document)
{
    JsonTextIO::read(stream, document);
    if (!document.IsObject())
    {
        throw std::invalid_argument("Invalid json document");
    }
}

} // namespace vrx
