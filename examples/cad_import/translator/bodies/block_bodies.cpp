#include "bodies/block_bodies.h"

#include "bodies/solid_body.h"
#include "common/body_figures.h"
#include "mp/narrow.h"
#include "translation_error.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

namespace
{

std::vector<TopoDS_Shape> solidsOf(const TopoDS_Shape& shape)
{
    TopTools_IndexedMapOfShape map;
    if (!shape.IsNull())
    {
        TopExp::MapShapes(shape, TopAbs_SOLID, map);
    }
    std::vector<TopoDS_Shape> solids;
    for (int i = 1; i <= map.Extent(); ++i)
    {
        solids.push_back(map(i));
    }
    return solids;
}

} // namespace

std::shared_ptr<vrx::ExcBlockGeometry> BlockBodies::make(const vrx::ExcBlock& block, const TopoDS_Shape& shape)
{
    std::vector<BODY*> made;
    ENTITY_LIST bodies;
    for (const TopoDS_Shape& solid : solidsOf(shape))
    {
        auto* const body = new BODY;
        m_all.list().add(body);
        bodies.add(body);
        made.push_back(body);
        m_ids[block.id()].push_back(vrx::ExcBlockGeometry::getEntityId(body));
        fillBody(*body, solid);
    }
    auto geometry = std::make_shared<vrx::ExcBlockGeometry>();
    geometry->setBlockId(block.id());
    geometry->own(true);
    const bool set = geometry->setGeometry(bodies, false);
    for (BODY* const body : made)
    {
        body->setPayload({});
    }
    if (!set)
    {
        throw TranslationError("The bodies of " + mp::toNarrow(block.name()) + " could not be put in shared memory.");
    }
    return geometry;
}

const std::vector<std::uint64_t>& BlockBodies::ids(std::uint64_t block) const
{
    static const std::vector<std::uint64_t> kNone;
    const auto found = m_ids.find(block);
    return found != m_ids.end() ? found->second : kNone;
}

std::vector<std::string> figuresOfBodies(const vrx::ExcBlock& block, const TopoDS_Shape& shape)
{
    std::vector<std::string> lines;
    for (const TopoDS_Shape& solid : solidsOf(shape))
    {
        lines.push_back("block " + std::to_string(block.id()) + " body " + std::to_string(lines.size() + 1) + ": " +
                        figuresText(figuresOf(solid)));
    }
    return lines;
}
