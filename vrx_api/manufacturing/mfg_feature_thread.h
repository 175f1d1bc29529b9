#pragma once

#include "vrx_api/manufacturing/mfg_feature.h"
#include "vrx_api/manufacturing/mfg_threading.h"

#include <memory>
#include <vector>

namespace vrx
{

/// A thread of a part: its data and the faces that carry it. Copies share the data and the entities.
class VRX_API ExcMfgFeatureThread : public ExcMfgFeature
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// May be null.
    const std::shared_ptr<ExcMfgThread>& thread() const { return m_thread; }
    void setThread(const std::shared_ptr<ExcMfgThread>& thread) { m_thread = thread; }

    /// The faces around the thread and at its two ends.
    const std::vector<std::shared_ptr<ExcEntity>>& sideFaces() const { return m_sideFaces; }
    const std::vector<std::shared_ptr<ExcEntity>>& topFaces() const { return m_topFaces; }
    const std::vector<std::shared_ptr<ExcEntity>>& bottomFaces() const { return m_bottomFaces; }

    /// A null pointer is logged and adds nothing.
    void addSideFace(const std::shared_ptr<ExcEntity>& face);
    void addTopFace(const std::shared_ptr<ExcEntity>& face);
    void addBottomFace(const std::shared_ptr<ExcEntity>& face);

protected:
    ExcMfgFeatureThread() = default;

private:
    friend struct Described<ExcMfgFeatureThread>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::shared_ptr<ExcMfgThread> m_thread;
    std::vector<std::shared_ptr<ExcEntity>> m_sideFaces;
    std::vector<std::shared_ptr<ExcEntity>> m_topFaces;
    std::vector<std::shared_ptr<ExcEntity>> m_bottomFaces;
};

/// A thread in a hole, as of a nut. The JSON does not name the kind: the list of `ExcMfgData` in which a thread stands
/// tells it.
class VRX_API ExcMfgFeatureInternalThread : public ExcMfgFeatureThread
{
};

/// A thread on a shaft, as of a screw.
class VRX_API ExcMfgFeatureExternalThread : public ExcMfgFeatureThread
{
};

} // namespace vrx
