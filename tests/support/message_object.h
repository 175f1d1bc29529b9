#pragma once

#include "tests/support/json_text.h"

namespace test
{

/// A message, which goes to and from a stream, as an object.
template <class T>
class MessageObject : public vrx::IJsonObject
{
public:
    void readObject(const vrx::JsonValue& value) override
    {
        vrx::JsonDocument document;
        document.CopyFrom(value, document.GetAllocator());
        readText(m_message, textOf(document));
    }

    void writeObject(vrx::JsonValue& value, vrx::JsonAllocator& allocator) const override
    {
        value.CopyFrom(parsed(written(m_message)), allocator);
    }

private:
    T m_message;
};

} // namespace test
