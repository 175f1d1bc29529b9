#include "vrx_api/exchange/stage_finished.h"

#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

const wstring ExcStageFinished::s_objectName = WIDE("exc_stage_finished");
static const StaticExchangeObject<ExcStageFinished> s_prototype;

static constexpr EnumName<ExcStageFinished::EStage> kStages[] = {
    {ExcStageFinished::EStage::Unknown, WIDE("unknown")},
    {ExcStageFinished::EStage::ProductStructure, WIDE("product_structure")},
    {ExcStageFinished::EStage::RootVisualization, WIDE("root_visualization")},
    {ExcStageFinished::EStage::Visualization, WIDE("visualization")},
    {ExcStageFinished::EStage::RootMechanical, WIDE("root_mechanical")},
    {ExcStageFinished::EStage::Mechanical, WIDE("mechanical")},
    {ExcStageFinished::EStage::VisuAndMech, WIDE("visu_and_mech")},
};
static constexpr const auto& enumTable(ExcStageFinished::EStage)
{
    return kStages;
}

template <class Self, class Fields>
void ExcStageFinished::describe(Self& self, Fields& fields)
{
    fields.whole(self.m_stage);
}
template struct Described<ExcStageFinished>;

void ExcStageFinished::readObject(const JsonValue& value)
{
    readWhole(*this, value);
}

void ExcStageFinished::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeWhole(*this, value, allocator);
}

const wstring& ExcStageFinished::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcStageFinished::clone() const
{
    return std::make_shared<ExcStageFinished>();
}

} // namespace vrx
