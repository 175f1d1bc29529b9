#pragma once

#include "vrx_api/json/json_object.h"

#include <cstdint>

namespace vrx
{

/// The type in which a text of the scene is set.
class VRX_API ExcVisuFont : public IJsonObject
{
public:
    enum class EPitch : std::int32_t
    {
        Unknown = 0,
        Fixed = 1,
        Variable = 2,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    wstring name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    double textHeight() const { return m_textHeight; }
    void setTextHeight(double height) { m_textHeight = height; }

    EPitch pitch() const { return m_pitch; }
    void setPitch(EPitch pitch) { m_pitch = pitch; }

    double spacingFactor() const { return m_spacingFactor; }
    void setSpacingFactor(double factor) { m_spacingFactor = factor; }

    double widthScalingFactor() const { return m_widthScalingFactor; }
    void setWidthScalingFactor(double factor) { m_widthScalingFactor = factor; }

private:
    friend struct Described<ExcVisuFont>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    double m_textHeight = 10.0;
    EPitch m_pitch = EPitch::Unknown;
    double m_spacingFactor = 1.0;
    double m_widthScalingFactor = 1.0;
};

} // namespace vrx
