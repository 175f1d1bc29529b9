#include "vrx_api/manufacturing/mfg_data.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMfgData::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("has_data"), self.m_hasData);
    if (!fields.goesOn(self.m_hasData))
    {
        return;
    }
    fields.filled(WIDE("simple_holes"), self.m_simpleHoles);
    fields.filled(WIDE("taper_holes"), self.m_taperHoles);
    fields.filled(WIDE("counter_bore_holes"), self.m_counterBoreHoles);
    fields.filled(WIDE("counter_sink_holes"), self.m_counterSinkHoles);
    fields.filled(WIDE("counter_drill_holes"), self.m_counterDrillHoles);
    fields.filled(WIDE("internal_threads"), self.m_internalThreads);
    fields.filled(WIDE("external_threads"), self.m_externalThreads);
    fields.filled(WIDE("unclassified_features"), self.m_unclassifiedFeatures);
}
template struct Described<ExcMfgData>;

void ExcMfgData::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgData");
}

void ExcMfgData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcMfgData::addSimpleHole(const std::shared_ptr<Hole<ExcMfgSimpleHole>>& hole)
{
    add(m_simpleHoles, hole, "ExcMfgData: attempt to add null Simple Hole object.");
}

void ExcMfgData::addTaperHole(const std::shared_ptr<Hole<ExcMfgTaperHole>>& hole)
{
    add(m_taperHoles, hole, "ExcMfgData: attempt to add null Taper Hole object.");
}

void ExcMfgData::addCounterBoreHole(const std::shared_ptr<Hole<ExcMfgCounterBoreHole>>& hole)
{
    add(m_counterBoreHoles, hole, "ExcMfgData: attempt to add null Counter Bore Hole object.");
}

void ExcMfgData::addCounterSinkHole(const std::shared_ptr<Hole<ExcMfgCounterSinkHole>>& hole)
{
    add(m_counterSinkHoles, hole, "ExcMfgData: attempt to add null Counter Sink Hole object.");
}

void ExcMfgData::addCounterDrillHole(const std::shared_ptr<Hole<ExcMfgCounterDrillHole>>& hole)
{
    add(m_counterDrillHoles, hole, "ExcMfgData: attempt to add null Counter Drill Hole object.");
}

void ExcMfgData::addInternalThread(const std::shared_ptr<ExcMfgFeatureInternalThread>& thread)
{
    add(m_internalThreads, thread, "ExcMfgData: attempt to add null Internal Thread object.");
}

void ExcMfgData::addExternalThread(const std::shared_ptr<ExcMfgFeatureExternalThread>& thread)
{
    add(m_externalThreads, thread, "ExcMfgData: attempt to add null External thread object.");
}

void ExcMfgData::addUnclassifiedFeature(const std::shared_ptr<ExcMfgFeatureUnclassified>& feature)
{
    add(m_unclassifiedFeatures, feature, "ExcMfgData: attempt to add null Unclassified Feature object.");
}

} // namespace vrx
