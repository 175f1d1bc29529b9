#pragma once

#include "vrx_api/exchange/exchange_object.h"

#include <cstdint>

namespace vrx
{

/// Tells the host that a stage of the translation is complete. Its JSON is a bare string, the name of the stage.
class VRX_API ExcStageFinished : public IExchangeObject
{
public:
    /// The stages of a translation.
    enum class EStage : std::int32_t
    {
        Unknown = 0,
        ProductStructure = 1,
        RootVisualization = 2,
        Visualization = 3,
        RootMechanical = 4,
        Mechanical = 5,
        VisuAndMech = 6,
    };

    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    ExcStageFinished() = default;
    /// For one stage.
    explicit ExcStageFinished(EStage stage)
        : m_stage(stage)
    {
    }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;

    /// The stage that is complete. Its name is the whole JSON of the object.
    EStage stage() const { return m_stage; }
    void setStage(EStage stage) { m_stage = stage; }

private:
    friend struct Described<ExcStageFinished>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EStage m_stage = EStage::Unknown;
};

} // namespace vrx
