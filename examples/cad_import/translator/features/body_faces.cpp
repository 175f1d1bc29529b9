#include "features/body_faces.h"

#include "mechanical/entities.h"

#include <TopExp.hxx>

BodyFaces::BodyFaces(std::uint64_t bodyId, const TopoDS_Shape& solid)
    : m_bodyId(bodyId)
{
    const auto faces = std::make_shared<TopTools_IndexedMapOfShape>();
    TopExp::MapShapes(solid, TopAbs_FACE, *faces);
    m_faces = faces;
}

std::shared_ptr<vrx::ExcEntity> BodyFaces::entity(const TopoDS_Face& face) const
{
    const int number = m_faces->FindIndex(face);
    if (number == 0)
    {
        return nullptr;
    }
    const vrx::ExcSubentId part(vrx::ExcSubentId::EType::Face, static_cast<std::uint64_t>(number - 1));
    return entities::ofBody(m_bodyId, part);
}
