#include "vrx_api/json/message.h"

#include <stdexcept>

namespace vrx
{

void readMessage(wistream& stream, JsonDocument& document, const ReadRules& rules)
{
    JsonTextIO::read(stream, document, rules);
    if (!document.IsObject())
    {
        throw std::invalid_argument("Invalid json document");
    }
}

} // namespace vrx
