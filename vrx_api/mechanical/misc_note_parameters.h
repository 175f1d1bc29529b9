#pragma once

#include "vrx_api/common/misc_data.h"

namespace vrx
{

/// A named set of parameters of the notes of a model, as free properties.
class VRX_API ExcMiscNoteParameters : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    ExcMiscData& properties() { return m_properties; }
    const ExcMiscData& properties() const { return m_properties; }

private:
    friend struct Described<ExcMiscNoteParameters>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    ExcMiscData m_properties;
};

} // namespace vrx
