#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>

#include <cstdint>
#include <memory>

/// Names the faces of one body: of a solid that stands several times in a block each place is a body of its own.
class BodyFaces
{
public:
    BodyFaces(std::uint64_t bodyId, const TopoDS_Shape& solid);

    /// Null for a face of another solid, or of this one in another place.
    std::shared_ptr<vrx::ExcEntity> entity(const TopoDS_Face& face) const;

private:
    std::uint64_t m_bodyId;
    std::shared_ptr<const TopTools_IndexedMapOfShape> m_faces; // not a map, whose moves may throw
};
