#pragma once

#include "vrx_api/json/json_object.h"

namespace vrx
{

/// An outside kernel on which a translator is built. Reading throws `std::invalid_argument` when the value is no
/// object.
class VRX_API ThirdpartyCore : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    ThirdpartyCore& setName(const wstring& name);

    const wstring& version() const { return m_version; }
    ThirdpartyCore& setVersion(const wstring& version);

private:
    friend struct Described<ThirdpartyCore>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    wstring m_version;
};

} // namespace vrx
