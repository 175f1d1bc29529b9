#include "vrx_api/manufacturing/mfg_feature_thread.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMfgFeatureThread::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgFeature>(self, fields);
    fields.filled(WIDE("thread_data"), self.m_thread);
    fields.filled(WIDE("side_faces"), self.m_sideFaces);
    fields.filled(WIDE("top_faces"), self.m_topFaces);
    fields.filled(WIDE("bottom_faces"), self.m_bottomFaces);
}
template struct Described<ExcMfgFeatureThread>;
template struct Inherits<ExcMfgFeatureInternalThread, ExcMfgFeatureThread>;
template struct Inherits<ExcMfgFeatureExternalThread, ExcMfgFeatureThread>;

void ExcMfgFeatureThread::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgFeatureThread");
}

void ExcMfgFeatureThread::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcMfgFeatureThread::addSideFace(const std::shared_ptr<ExcEntity>& face)
{
    add(m_sideFaces, face, "ExcMfgFeatureThread: attempt to add null Side Face Entity object.");
}

void ExcMfgFeatureThread::addTopFace(const std::shared_ptr<ExcEntity>& face)
{
    add(m_topFaces, face, "ExcMfgFeatureThread: attempt to add null Top Face Entity object.");
}

void ExcMfgFeatureThread::addBottomFace(const std::shared_ptr<ExcEntity>& face)
{
    add(m_bottomFaces, face, "ExcMfgFeatureThread: attempt to add null Bottom Face Entity object.");
}

} // namespace vrx
