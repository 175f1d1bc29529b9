#include "vrx_api/exchange_classes.h"

#include "vrx_api/vrx_api.h"

namespace vrx
{

// Each name stands in the source that enters its class. Of external linkage, so that no compiler leaves it out.
extern const wstring* const kExchangeClassNames[];
// NOLINTNEXTLINE(cppcoreguidelines-interfaces-global-init): only the addresses are taken
const wstring* const kExchangeClassNames[] = {
    &ExcBlockGeometry::s_objectName,
    &ExcBlockMechanicalData::s_objectName,
    &ExcBlockVisualization::s_objectName,
    &ExcLog::s_objectName,
    &ExcMessage::s_objectName,
    &ExcProductStructure::s_objectName,
    &ExcProgress::s_objectName,
    &ExcRootAssemblyVisualization::s_objectName,
    &ExcRootMechanicalData::s_objectName,
    &ExcStageFinished::s_objectName,
    &LegacyComponentInstanceNames::s_objectName,
    &LegacyMaterialMap::s_objectName,
};

void linkExchangeClasses()
{
}

} // namespace vrx
