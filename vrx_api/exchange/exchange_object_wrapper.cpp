#include "vrx_api/exchange/exchange_object_wrapper.h"

#include "kolt/log.h"
#include "mp/shared_buffer.h"
#include "vrx_api/exchange/binary_form.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/envelope_keys.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/fields.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/message.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <stdexcept>

namespace vrx
{

namespace
{

Bytes compressedForm(const IExchangeObject& object, int level)
{
    Bytes plain;
    JsonBinaryIO::write(plain, object);
    Bytes bytes;
    Compressor::compress(bytes, plain.data(), plain.size(), level);
    return bytes;
}

// Makes a buffer that goes with the object, for as long as nobody was told of it.
void fill(mp::SharedBuffer<char>& buffer, std::uint64_t size, const std::function<void(char*)>& make)
{
    buffer.open(IExchangeObject::generateUUID(), true);
    buffer.fill(size, make);
}

void share(mp::SharedBuffer<char>& buffer, const IExchangeObject& object, ECompression compression)
{
    constexpr int kDefaultLevel = -1;
    constexpr int kFastestLevel = 1;
    if (compression == ECompression::None || !object.compress())
    {
        const BinaryForm form(object);
        fill(buffer, form.size(), [&form](char* content) { form.write(content); });
        return;
    }
    const Bytes bytes = compressedForm(object, compression == ECompression::Fast ? kFastestLevel : kDefaultLevel);
    fill(buffer, bytes.size(), [&bytes](char* content) { std::copy(bytes.begin(), bytes.end(), content); });
}

// The object itself, or the name of its buffer.
struct ObjectOrName
{
};

void outline(Shape&, const ObjectOrName&)
{
    // Any value: the class under the name tells.
}

Shape outlineOfEnvelope()
{
    FieldLister fields;
    fields.required(kEnvelopeName, kSilently, wstring());
    fields.filled(kEnvelopeBinary, bool());
    fields.required(kEnvelopeData, kSilently, ObjectOrName());
    return fields.take();
}

} // namespace

static const bool s_entered =
    enterShape(typeid(ExchangeObjectWrapper), signatureWith<ExchangeObjectWrapper>(), &outlineOfEnvelope);

void ExchangeObjectWrapper::writeObject(wostream& stream) const
{
    kolt::trace();
    if (m_pObject == nullptr)
    {
        throw std::invalid_argument("ExchangeObjectWrapper::writeObject > m_pObject == nullptr");
    }
    JsonDocument document(rapidjson::kObjectType);
    JsonAllocator& allocator = document.GetAllocator();
    addMember(document, kEnvelopeName, treeOf(m_pObject->objectName(), allocator), allocator);
    mp::SharedBuffer<char> buffer;
    if (m_pObject->binary())
    {
        addMember(document, kEnvelopeBinary, JsonValue(true), allocator);
        share(buffer, *m_pObject, m_compression);
        addMember(document, kEnvelopeData, treeOf(buffer.name(), allocator), allocator);
    }
    else
    {
        addMember(document, kEnvelopeData, treeOf(*m_pObject, allocator), allocator);
    }
    JsonTextIO::write(stream, document, true);
    // A stream that takes nothing tells nobody; otherwise the reader removes the buffer.
    buffer.setRemoveOnClose(stream.fail());
}

void ExchangeObjectWrapper::readObject(wistream& stream)
{
    kolt::trace();
    JsonDocument document;
    readMessage(stream, document, m_readRules);

    const JsonValue* const name = find(document, kEnvelopeName);
    if (name == nullptr || !name->IsString())
    {
        m_pObject.reset();
        return;
    }
    m_pObject = ExchangeObjectRegistry::instance().get(wstring(textOf(*name)));
    if (m_pObject == nullptr)
    {
        return;
    }
    m_pObject->setReadRules(m_readRules);
    const JsonValue* const data = find(document, kEnvelopeData);
    if (data == nullptr)
    {
        kolt::log(kolt::kError, "ExchangeObjectWrapper JSON object has no Exchange Object data.");
        return;
    }
    const JsonValue* const binary = find(document, kEnvelopeBinary);
    if (binary == nullptr || !binary->IsTrue())
    {
        m_pObject->readObject(*data);
        return;
    }
    if (!data->IsString())
    {
        kolt::log(kolt::kError,
                  "ExchangeObjectWrapper JSON object should have UUID in Exchange Object Data field (if binary).");
        return;
    }
    m_pObject->setSource(wstring(textOf(*data)));
    if (!m_delayedLoading)
    {
        m_pObject->load();
    }
}

} // namespace vrx
