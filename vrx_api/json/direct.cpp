#include "vrx_api/json/direct.h"

#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_value.h"

#include <typeindex>
#include <unordered_map>

namespace vrx
{

namespace
{

// It is filled while the library is loaded and only read afterwards.
using Ways = std::unordered_map<std::type_index, DirectWay>;

Ways& ways()
{
    static Ways ways;
    return ways;
}

} // namespace

bool enterReader(const std::type_info& type, void (*read)(IJsonObject&, BinaryValue))
{
    ways()[type].read = read;
    return true;
}

bool enterWriter(const std::type_info& type, void (*size)(const IJsonObject&, SizeWriter&),
                 void (*write)(const IJsonObject&, ByteWriter&))
{
    DirectWay& way = ways()[type];
    way.size = size;
    way.write = write;
    return true;
}

const DirectWay& directWay(const std::type_info& type)
{
    static const DirectWay none;
    const auto found = ways().find(type);
    return found == ways().end() ? none : found->second;
}

void decodeTree(BinaryValue value, JsonDocument& document)
{
    const auto size = static_cast<std::uint64_t>(value.next() - value.place());
    JsonBinaryIO::read(value.place(), size, document, document.GetAllocator());
}

void readByTree(IJsonObject& object, BinaryValue value)
{
    JsonDocument document;
    decodeTree(value, document);
    object.readObject(document);
}

} // namespace vrx
