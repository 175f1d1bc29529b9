#include "bench/road.h"

#include "bench/envelope.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_value.h"

namespace bench
{

namespace
{

vrx::Bytes encoded(const Model& model, const vrx::IExchangeObject& object)
{
    vrx::JsonDocument tree;
    object.writeObject(tree, tree.GetAllocator());
    if (model.makeReadable != nullptr)
    {
        model.makeReadable(tree);
    }
    vrx::Bytes bytes;
    vrx::JsonBinaryIO::write(bytes, tree);
    return bytes;
}

vrx::Bytes compressedForm(const vrx::Bytes& plain, int level)
{
    vrx::Bytes bytes;
    vrx::Compressor::compress(bytes, plain.data(), plain.size(), level);
    return bytes;
}

} // namespace

Road::Road(const Model& model)
    : name(model.name)
    , object(model.make())
    , binary(encoded(model, *object))
    , compressed(compressedForm(binary, -1))
    , compressedFast(compressedForm(binary, 1))
{
}

const vrx::Bytes& Road::content(vrx::ECompression compression) const
{
    switch (compression)
    {
    case vrx::ECompression::Fast:
        return compressedFast;
    case vrx::ECompression::None:
        return binary;
    default:
        return compressed;
    }
}

vrx::wstring Road::envelope(vrx::ECompression compression) const
{
    return envelopeOf(*object, content(compression));
}

} // namespace bench
