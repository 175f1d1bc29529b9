#pragma once

#include "tests/support/units.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"

#include <memory>
#include <string>

namespace test
{

/// The envelope of an object, as bytes.
inline std::string envelopeOf(const std::shared_ptr<vrx::IExchangeObject>& object)
{
    vrx::ExchangeObjectWrapper wrapper;
    wrapper.set(object);
    mp::wostringstream stream;
    wrapper.writeObject(stream);
    return bytesOf(stream.str());
}

/// The object of an envelope.
inline std::shared_ptr<vrx::IExchangeObject> opened(const std::string& envelope, bool delayed = false)
{
    vrx::ExchangeObjectWrapper wrapper;
    wrapper.setDelayedLoading(delayed);
    mp::wistringstream stream(unitsOf(envelope));
    wrapper.readObject(stream);
    return wrapper.get();
}

} // namespace test
