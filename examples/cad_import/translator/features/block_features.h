#pragma once

#include "features/hole.h"
#include "features/hole_patterns.h"
#include "features/step_threads.h"
#include "structure/model_frame.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <cstdint>

class ShapeLinks;

/// Makes the features of one block.
class BlockFeatures
{
public:
    BlockFeatures(std::uint64_t block, const ModelFrame& frame, ShapeLinks& links)
        : m_block(block)
        , m_frame(frame)
        , m_links(links)
    {
    }

    void addHole(vrx::ExcMfgData& data, const Hole& hole) const;

    /// Of these holes of one solid.
    void addPattern(vrx::ExcMfgData& data, const HolePattern& pattern, const std::vector<Hole>& holes) const;

    /// On these faces; the hole is the one that is tapped, or null.
    void addThread(vrx::ExcMfgData& data, const StepThread& thread, const std::vector<TopoDS_Face>& faces,
                   const Hole* hole) const;

private:
    template <class T>
    std::shared_ptr<vrx::ExcMfgFeatureHoleType<T>> feature(const Hole& hole, const std::shared_ptr<T>& data) const;

    template <class Add>
    void link(const std::vector<TopoDS_Face>& faces, const Add& add) const;

    vrx::ExcVector3d point(const gp_Pnt& point) const;

    std::uint64_t m_block;
    const ModelFrame& m_frame;
    ShapeLinks& m_links;
};
