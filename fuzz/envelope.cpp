#include "fuzz/support.h"
#include "vrx_api/vrx_api_exchange_object.h"

// Without loading: the shared memory that an envelope names is not touched.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vrx::ExchangeObjectWrapper envelope;
    envelope.setDelayedLoading(true);
    try
    {
        mp::wistringstream stream(fuzz::textOf(data, size));
        envelope.readObject(stream);
    }
    catch (const std::invalid_argument&)
    {
        return 0;
    }
    if (envelope.get() != nullptr && !envelope.get()->binary())
    {
        mp::wstringstream written;
        envelope.writeObject(written);
        vrx::ExchangeObjectWrapper again;
        again.readObject(written);
        fuzz::require(again.get() != nullptr && again.get()->objectName() == envelope.get()->objectName());
    }
    return 0;
}
