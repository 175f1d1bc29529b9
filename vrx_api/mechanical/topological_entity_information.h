#pragma once

#include "vrx_api/common/entity.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vrx
{

/// What is known of one body, face, edge or vertex beside its shape: its names, and how it is drawn. Copies share the
/// entity.
class VRX_API ExcTopologicalEntityInformation : public IJsonObject
{
public:
    enum class ELineType : std::int32_t
    {
        Unknown = 0,
        Solid = 1,
        Dash = 2,
        Dot = 3,
        DashDot = 4,
        DashDotDot = 5,
        DashDotDotDot = 6,
        DashDashDot = 7,
        DashDashDotDot = 8,
        DashDashDotDotDot = 9,
        ShortDash = 10,
        LongDash = 11,
        MediumDashLongDash = 12,
        MediumDashShortDashShortDash = 13,
        LongDashShortDash = 14,
        LongDashShortDashShortDash = 15,
        LongDashDotDot = 16,
        LongDashDot = 17,
        MediumDashDotShortDashDot = 18,
        SparseDot = 19,
        VisibleInvisible = 20,
        Zigzag = 21,
        CurveBatting = 22,
        FenceCircle = 23,
        FenceSquare = 24,
        SupplyLineGas = 25,
        SupplyLineHotWater = 26,
        Tracks = 27,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const std::shared_ptr<ExcEntity>& entity() const { return m_entity; }
    void setEntity(const std::shared_ptr<ExcEntity>& entity) { m_entity = entity; }

    /// The names by which the CAD system finds the entity again after a change of the model. Duplicates stay.
    const std::vector<wstring>& persistentNames() const { return m_persistentNames; }
    void setPersistentNames(const std::vector<wstring>& names) { m_persistentNames = names; }
    void addPersistentName(const wstring& name) { m_persistentNames.push_back(name); }

    const wstring& name() const { return m_name; }
    void setName(const wstring& name) { m_name = name; }

    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }

    ELineType lineType() const { return m_lineType; }
    void setLineType(ELineType type) { m_lineType = type; }

    double lineThickness() const { return m_lineThickness; }
    void setLineThickness(double thickness) { m_lineThickness = thickness; }

private:
    friend struct Described<ExcTopologicalEntityInformation>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::shared_ptr<ExcEntity> m_entity;
    std::vector<wstring> m_persistentNames;
    wstring m_name;
    bool m_hidden = false;
    ELineType m_lineType = ELineType::Unknown;
    double m_lineThickness = 0.0;
};

} // namespace vrx
