#include "vrx_api/exchange/exchange_object.h"

#include "kolt/log.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/exchange/shared_content.h"
#include "vrx_api/json/json_value.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <string>

namespace vrx
{

namespace
{

// Decodes the content of a buffer, which is removed from the system.
void takeContent(const wstring& name, std::uint64_t sizeLimit, JsonDocument& document)
{
    mp::SharedBuffer<char> buffer;
    buffer.open(name, true);
    const PlainContent content(buffer, sizeLimit);
    JsonBinaryIO::read(content.data(), content.size(), document, document.GetAllocator());
}

} // namespace

IExchangeObject::~IExchangeObject() = default;

bool IExchangeObject::binary() const
{
    return false;
}

bool IExchangeObject::compress() const
{
    return false;
}

bool IExchangeObject::isLoaded() const
{
    return m_loaded;
}

void IExchangeObject::load()
{
    kolt::trace();
    if (m_loaded || m_source.empty() || !binary())
    {
        return;
    }
    JsonDocument document;
    takeContent(m_source, m_sizeLimit, document);
    readObject(document);
    m_loaded = true;
}

wstring IExchangeObject::generateUUID()
{
    boost::uuids::random_generator generate;
    const std::string text = boost::uuids::to_string(generate());
    return wstring(text.begin(), text.end());
}

} // namespace vrx
