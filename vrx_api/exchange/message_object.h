#pragma once

#include "vrx_api/exchange/exchange_object.h"

namespace vrx
{

/// Free text from the translator.
class VRX_API ExcMessageBase : public IExchangeObject
{
public:
    ExcMessageBase() = default;
    /// With its text.
    explicit ExcMessageBase(const wstring& message)
        : m_message(message)
    {
    }
    /// With its text, which ends with a zero.
    explicit ExcMessageBase(const wchar* message)
        : m_message(message)
    {
    }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& get() const { return m_message; }
    void set(const wstring& message) { m_message = message; }

private:
    friend struct Described<ExcMessageBase>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_message;
};

/// Text for the user.
class VRX_API ExcMessage : public ExcMessageBase
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    using ExcMessageBase::ExcMessageBase;
    ExcMessage() = default;

    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;
};

/// A line for the host's log.
class VRX_API ExcLog : public ExcMessageBase
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    using ExcMessageBase::ExcMessageBase;
    ExcLog() = default;

    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;
};

} // namespace vrx
