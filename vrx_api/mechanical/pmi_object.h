#pragma once

#include "vrx_api/json/json_object.h"

namespace vrx
{

/// What annotations and captures have in common: a name, an id by which others point at them, and whether they are
/// hidden.
class VRX_API ExcPMIObject : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }

protected:
    ExcPMIObject() = default;

private:
    friend struct Described<ExcPMIObject>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    wstring m_id;
    bool m_hidden = false;
};

extern template struct Described<ExcPMIObject>;

} // namespace vrx
