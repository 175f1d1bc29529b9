#pragma once

#include "vrx_api/exchange/bytes.h"
#include "vrx_api/exchange/compression.h"
#include "vrx_api/exchange/exchange_object.h"

#include <memory>

namespace bench
{

/// A shared memory object in the system, removed at the end.
class SharedContent
{
public:
    explicit SharedContent(const vrx::Bytes& content);
    SharedContent(const SharedContent&) = delete;
    SharedContent& operator=(const SharedContent&) = delete;
    ~SharedContent();

    const vrx::wstring& name() const { return m_name; }

private:
    vrx::wstring m_name;
};

/// The text of the envelope that a whole write gives.
vrx::wstring written(const std::shared_ptr<vrx::IExchangeObject>& object, vrx::ECompression compression);

/// The text of an envelope for shared memory that has this content.
vrx::wstring envelopeOf(const vrx::IExchangeObject& object, const vrx::Bytes& content);

/// An envelope by its text; the shared memory that it tells of is removed at the end.
class Envelope
{
public:
    explicit Envelope(vrx::wstring text);
    Envelope(const Envelope&) = delete;
    Envelope& operator=(const Envelope&) = delete;
    ~Envelope();

    std::shared_ptr<vrx::IExchangeObject> read() const;

private:
    vrx::wstring m_text;
};

} // namespace bench
