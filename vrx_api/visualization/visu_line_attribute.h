#pragma once

#include "vrx_api/json/json_object.h"

#include <cstdint>

namespace vrx
{

/// How the lines of a scene item are drawn.
class VRX_API ExcVisuLineAttribute : public IJsonObject
{
public:
    /// The pattern of dashes and dots. There is no number 7.
    enum class ELineStyle : std::int32_t
    {
        Undefined = 0,
        SolidLine = 1,
        DashDotLine = 2,
        DashLine = 3,
        DotLine = 4,
        DashDotDotLine = 5,
        DashDotDotDotLine = 6,
        CenterLine = 8,
        PhantomLine = 9,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    double lineWeight() const { return m_lineWeight; }
    void setLineWeight(double weight) { m_lineWeight = weight; }

    ELineStyle lineStyle() const { return m_lineStyle; }
    void setLineStyle(ELineStyle style) { m_lineStyle = style; }

private:
    friend struct Described<ExcVisuLineAttribute>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    double m_lineWeight = 0.0;
    ELineStyle m_lineStyle = ELineStyle::Undefined;
};

} // namespace vrx
