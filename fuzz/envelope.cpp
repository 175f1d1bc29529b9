#include "fuzz/support.h"
#include "fuzz/tree_mutator.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/exchange/peek_envelope.h"
#include "vrx_api/vrx_api_exchange_object.h"

const fuzz::InputForm fuzz::kInputForm{true, false};

namespace
{

// Without loading: the shared memory that an envelope names is not touched. False for a text that is refused.
bool reads(const mp::wstring& text, vrx::ExchangeObjectWrapper& envelope, const vrx::ReadRules& rules = {})
{
    envelope.setDelayedLoading(true);
    envelope.setReadRules(rules);
    try
    {
        mp::wistringstream stream(text);
        envelope.readObject(stream);
        return true;
    }
    catch (const std::invalid_argument&)
    {
        return false;
    }
}

// What an envelope with its object in the text writes, or nothing.
mp::wstring written(const vrx::ExchangeObjectWrapper& envelope)
{
    mp::wstringstream stream;
    if (envelope.get() != nullptr && !envelope.get()->binary())
    {
        envelope.writeObject(stream);
    }
    return stream.str();
}

// What is told of a message before it is read is what reading finds.
void comparePeek(const vrx::MessageHead& head, const vrx::ExchangeObjectWrapper& envelope)
{
    if (envelope.get() == nullptr)
    {
        fuzz::require(vrx::ExchangeObjectRegistry::instance().get(head.objectName) == nullptr);
        return;
    }
    fuzz::require(head.kind == vrx::EMessageKind::Envelope && head.objectName == envelope.get()->objectName());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const mp::wstring text = fuzz::textOf(data, size);
    const vrx::MessageHead head = vrx::peekEnvelope(text);
    vrx::ExchangeObjectWrapper envelope;
    if (!reads(text, envelope))
    {
        return 0;
    }
    comparePeek(head, envelope);
    const mp::wstring first = written(envelope);
    if (!first.empty())
    {
        vrx::ExchangeObjectWrapper again;
        fuzz::require(reads(first, again) && again.get() != nullptr &&
                      again.get()->objectName() == envelope.get()->objectName());
    }
    // A strict reader takes the same, or nothing.
    vrx::ExchangeObjectWrapper strict;
    if (reads(text, strict, vrx::ReadRules::strict()))
    {
        fuzz::require(written(strict) == first && (strict.get() == nullptr) == (envelope.get() == nullptr));
    }
    return 0;
}
