#include "bench/road.h"

#include "bench/heap_peak.h"
#include "mp/shared_buffer.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

#include <utility>

namespace bench
{

namespace
{

void removeShared(const vrx::wstring& name)
{
    mp::SharedBuffer<char> buffer;
    buffer.open(name, true);
}

void share(const vrx::wstring& name, const vrx::Bytes& content)
{
    mp::SharedBuffer<char> buffer;
    buffer.open(name, false);
    if (!content.empty())
    {
        buffer.write(content.data(), content.size());
    }
}

vrx::Bytes encoded(const vrx::IExchangeObject& object)
{
    vrx::JsonDocument tree;
    object.writeObject(tree, tree.GetAllocator());
    vrx::Bytes bytes;
    vrx::JsonBinaryIO::write(bytes, tree);
    return bytes;
}

vrx::Bytes deflated(const vrx::Bytes& plain)
{
    constexpr int kDefaultCompression = -1;
    vrx::Bytes bytes;
    vrx::Compressor::compress(bytes, plain.data(), plain.size(), kDefaultCompression);
    return bytes;
}

std::size_t peakOfWrite(std::shared_ptr<vrx::IExchangeObject> (*make)())
{
    const HeapPeak peak;
    const Envelope written(make());
    return peak.bytes();
}

std::size_t peakOfRead(const Road& road)
{
    const Envelope envelope(road);
    const HeapPeak peak;
    const auto object = envelope.read();
    return peak.bytes();
}

} // namespace

Road::Road(std::string roadName, std::shared_ptr<vrx::IExchangeObject> (*make)())
    : name(std::move(roadName))
    , object(make())
    , binary(encoded(*object))
    , compressed(deflated(binary))
    , writePeak(peakOfWrite(make))
    , readPeak(peakOfRead(*this))
{
}

SharedContent::SharedContent(const vrx::Bytes& content)
    : m_name(vrx::IExchangeObject::generateUUID())
{
    share(m_name, content);
}

SharedContent::~SharedContent()
{
    removeShared(m_name);
}

Envelope::Envelope(const std::shared_ptr<vrx::IExchangeObject>& object)
{
    vrx::ExchangeObjectWrapper wrapper;
    wrapper.set(object);
    vrx::wostringstream stream;
    wrapper.writeObject(stream);
    m_text = stream.str();
}

Envelope::Envelope(const Road& road)
{
    const vrx::wstring content = vrx::IExchangeObject::generateUUID();
    share(content, road.compressed);
    m_text = WIDE("{\"exchange_object_name\":\"") + road.object->objectName() +
             WIDE("\",\"binary\":true,\"exchange_object_data\":\"") + content + WIDE("\"}");
}

Envelope::~Envelope()
{
    vrx::wistringstream stream(m_text);
    vrx::JsonDocument document;
    vrx::JsonTextIO::read(stream, document);
    removeShared(document[WIDE("exchange_object_data")].GetString());
}

std::shared_ptr<vrx::IExchangeObject> Envelope::read() const
{
    vrx::ExchangeObjectWrapper wrapper;
    vrx::wistringstream stream(m_text);
    wrapper.readObject(stream);
    return wrapper.get();
}

} // namespace bench
