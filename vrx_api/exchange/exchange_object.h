#pragma once

#include "vrx_api/json/json_object.h"
#include "vrx_api/json/read_rules.h"

#include <memory>

namespace vrx
{

/// A top-level unit of data that a translator hands to its host. Its class has a name, by which it is created on the
/// other side, and says how it travels: as text inside its envelope, or as binary JSON in shared memory.
class VRX_API IExchangeObject : public IJsonObject
{
public:
    ~IExchangeObject() override;
    void readObject(const JsonValue& value) override = 0;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override = 0;

    /// The name of the class on the wire, by which the other side makes an object of it.
    virtual const wstring& objectName() const = 0;

    /// A new default object of the class; nothing of this object is copied.
    virtual std::shared_ptr<IExchangeObject> clone() const = 0;

    /// True when the object travels through shared memory.
    virtual bool binary() const;

    /// True when that form is compressed.
    virtual bool compress() const;

    /// Whether `load` has been done.
    virtual bool isLoaded() const;

    /// Fills a binary object from its source, which is removed from the system; does nothing without a source or a
    /// second time. Throws `mp::SharedMemoryException`, `std::length_error` or `std::invalid_argument` for content that
    /// is no binary JSON, `std::runtime_error` for damaged compressed data, and for content that breaks the read rules
    /// `std::length_error` above a limit and `std::invalid_argument` or `std::runtime_error` for what is refused.
    virtual void load();

    /// The name of the shared memory buffer that holds this object's content.
    void setSource(const wstring& source) { m_source = source; }

    /// What is asked of the content. Nothing is until rules are set.
    void setReadRules(const ReadRules& rules) { m_readRules = rules; }

    /// A new random UUID (RFC 4122, version 4) in its lower-case form of 36 characters.
    static wstring generateUUID();

protected:
    IExchangeObject() = default;
    IExchangeObject(const IExchangeObject&) = default;
    IExchangeObject(IExchangeObject&&) = default;
    IExchangeObject& operator=(const IExchangeObject&) = default;
    IExchangeObject& operator=(IExchangeObject&&) = default;

    /// The name of the buffer that `load` reads; empty for none.
    wstring m_source;
    /// Whether `load` has been done.
    bool m_loaded = false;
    /// What `load` asks of the content.
    ReadRules m_readRules;
};

} // namespace vrx
