#include "vrx_api/exchange/exchange_object.h"

#include "kolt/log.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/exchange/shared_content.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <string>

namespace vrx
{

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
    mp::SharedBuffer<char> buffer;
    buffer.open(m_source, true);
    const PlainContent content(buffer, m_readRules);
    JsonBinaryIO::read(content.data(), content.size(), *this, m_readRules);
    m_loaded = true;
}

wstring IExchangeObject::generateUUID()
{
    boost::uuids::random_generator generate;
    const std::string text = boost::uuids::to_string(generate());
    return wstring(text.begin(), text.end());
}

} // namespace vrx
