#include "received_bodies.h"

#include "mp/narrow.h"

#include <string>

namespace
{

using ListParts = outcome (*)(ENTITY*, ENTITY_LIST&, PAT_NEXT_TYPE, AcisOptions*);
using EType = vrx::ExcSubentId::EType;

std::uint64_t count(ENTITY& body, ListParts list)
{
    ENTITY_LIST parts;
    list(&body, parts, PAT_CAN_CREATE, nullptr);
    return static_cast<std::uint64_t>(parts.count());
}

// The id in the scene of a part of a body, or of the body itself.
mp::wstring idInScene(const std::string& body, const vrx::ExcSubentId& part)
{
    if (part.type() == EType::Null || part.type() == EType::Body)
    {
        return mp::toWide('b' + body);
    }
    return mp::toWide(body + '/' + static_cast<char>(part.type()) + std::to_string(part.index()));
}

} // namespace

void ReceivedBodies::add(const vrx::ExcBlockGeometry& geometry)
{
    const auto restored = std::make_shared<const RestoredBodies>(geometry);
    Block block{{}, restored};
    for (std::size_t i = 0; i < restored->count(); ++i)
    {
        block.bodies.push_back({restored->id(i),
                                {{EType::Face, count(restored->body(i), api_get_faces)},
                                 {EType::Edge, count(restored->body(i), api_get_edges)},
                                 {EType::Vertex, count(restored->body(i), api_get_vertices)}},
                                {}});
        m_places[restored->id(i)] = {geometry.blockId(), i};
    }
    m_blocks[geometry.blockId()] = block;
}

void ReceivedBodies::measure(std::uint64_t block, EBox box)
{
    const auto found = m_blocks.find(block);
    if (found == m_blocks.end() || !found->second.restored || m_measurer == nullptr)
    {
        return;
    }
    for (std::size_t i = 0; i < found->second.bodies.size(); ++i)
    {
        found->second.bodies[i].figures = m_measurer(found->second.restored->body(i), box);
    }
    found->second.restored = nullptr;
}

const std::vector<ReceivedBodies::Body>& ReceivedBodies::of(std::uint64_t block) const
{
    static const std::vector<Body> kNone;
    const auto found = m_blocks.find(block);
    return found != m_blocks.end() ? found->second.bodies : kNone;
}

std::vector<std::uint64_t> ReceivedBodies::blocks() const
{
    std::vector<std::uint64_t> ids;
    for (const auto& [id, block] : m_blocks)
    {
        ids.push_back(id);
    }
    return ids;
}

BodyLink ReceivedBodies::link(const vrx::ExcEntity& entity) const
{
    BodyLink link;
    if (!entity.fsp())
    {
        link.mechanicalId = entity.id();
        return link;
    }
    const std::uint64_t id = entity.fsp()->bodyId();
    const vrx::ExcSubentId& part = entity.fsp()->subentId();
    const auto place = m_places.find(id);
    if (place == m_places.end() || place->second.position >= of(place->second.block).size())
    {
        link.mechanicalId = idInScene(std::to_string(id), part);
        return link;
    }
    const Body& body = of(place->second.block)[place->second.position];
    const auto count = body.counts.find(part.type());
    link.mechanicalId = idInScene(std::to_string(place->second.position), part);
    link.type = count != body.counts.end() ? part.type() : EType::Body;
    link.resolved = link.type == EType::Body || part.index() < count->second;
    link.block = place->second.block;
    link.body = place->second.position;
    link.index = link.type == EType::Body ? 0 : part.index();
    return link;
}

std::vector<BodyLink> ReceivedBodies::links(const Entities& entities) const
{
    std::vector<BodyLink> links;
    for (const std::shared_ptr<vrx::ExcEntity>& entity : entities)
    {
        links.push_back(link(*entity));
    }
    return links;
}
