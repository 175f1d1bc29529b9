#pragma once

#include "features/body_faces.h"
#include "features/hole.h"
#include "features/hole_patterns.h"
#include "features/step_threads.h"
#include "structure/model_frame.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <memory>
#include <vector>

/// A hole that is tapped, and the body that has it.
struct TappedHole
{
    const Hole& hole;
    const BodyFaces& faces;
};

/// Makes features in the units of the model.
class BlockFeatures
{
public:
    BlockFeatures(vrx::ExcMfgData& data, const ModelFrame& frame)
        : m_data(data)
        , m_frame(frame)
    {
    }

    void addHole(const Hole& hole, const BodyFaces& faces) const;

    /// Of these holes of one body.
    void addPattern(const HolePattern& pattern, const std::vector<Hole>& holes, const BodyFaces& faces) const;

    /// On these faces, of which the shape is that of one; the hole may be null.
    void addThread(const StepThread& thread, const std::vector<std::shared_ptr<vrx::ExcEntity>>& sides,
                   const TopoDS_Face& shape, const TappedHole* tapped) const;

private:
    template <class T>
    std::shared_ptr<vrx::ExcMfgFeatureHoleType<T>> feature(const Hole& hole, const BodyFaces& faces,
                                                           const std::shared_ptr<T>& data) const;

    vrx::ExcVector3d point(const gp_Pnt& point) const;

    vrx::ExcMfgData& m_data;
    const ModelFrame& m_frame;
};
