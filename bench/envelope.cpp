#include "bench/envelope.h"

#include "mp/shared_buffer.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
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

vrx::wstring share(const vrx::Bytes& content)
{
    vrx::wstring name = vrx::IExchangeObject::generateUUID();
    mp::SharedBuffer<char> buffer;
    buffer.open(name, false);
    if (!content.empty())
    {
        buffer.write(content.data(), content.size());
    }
    return name;
}

} // namespace

SharedContent::SharedContent(const vrx::Bytes& content)
    : m_name(share(content))
{
}

SharedContent::~SharedContent()
{
    removeShared(m_name);
}

vrx::wstring written(const std::shared_ptr<vrx::IExchangeObject>& object, vrx::ECompression compression)
{
    vrx::ExchangeObjectWrapper wrapper;
    wrapper.set(object);
    wrapper.setCompression(compression);
    vrx::wostringstream stream;
    wrapper.writeObject(stream);
    return stream.str();
}

vrx::wstring envelopeOf(const vrx::IExchangeObject& object, const vrx::Bytes& content)
{
    return WIDE("{\"exchange_object_name\":\"") + object.objectName() +
           WIDE("\",\"binary\":true,\"exchange_object_data\":\"") + share(content) + WIDE("\"}");
}

Envelope::Envelope(vrx::wstring text)
    : m_text(std::move(text))
{
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
