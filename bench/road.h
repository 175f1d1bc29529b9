#pragma once

#include "vrx_api/exchange/bytes.h"
#include "vrx_api/exchange/exchange_object.h"

#include <memory>
#include <string>

namespace bench
{

/// An object and the forms that it takes on its way.
struct Road
{
    Road(std::string roadName, std::shared_ptr<vrx::IExchangeObject> (*make)());

    std::string name;
    std::shared_ptr<vrx::IExchangeObject> object;
    vrx::Bytes binary;
    vrx::Bytes compressed;

    /// The most heap that a whole write and a whole read take, model objects included.
    std::size_t writePeak;
    std::size_t readPeak;
};

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

/// The text that a whole write gives; the shared memory that it tells of is removed at the end.
class Envelope
{
public:
    /// Writes an object.
    explicit Envelope(const std::shared_ptr<vrx::IExchangeObject>& object);

    /// Tells of shared memory that has this content.
    explicit Envelope(const Road& road);

    Envelope(const Envelope&) = delete;
    Envelope& operator=(const Envelope&) = delete;
    ~Envelope();

    std::shared_ptr<vrx::IExchangeObject> read() const;

private:
    vrx::wstring m_text;
};

} // namespace bench
