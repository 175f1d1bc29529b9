#include "pmi/received_pmi.h"

#include "mp/narrow.h"
#include "restored_bodies.h"

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

void ReceivedPmi::add(const vrx::ExcBlockMechanicalData& data)
{
    add(data.pmiData());
}

void ReceivedPmi::add(const vrx::ExcRootMechanicalData& data)
{
    add(data.pmiData());
}

void ReceivedPmi::add(const std::shared_ptr<vrx::ExcPMIData>& data)
{
    if (!data)
    {
        return;
    }
    for (const std::shared_ptr<vrx::ExcPMIAnnotationSet>& set : data->annotationSets())
    {
        m_sets.push_back(set);
        for (const std::shared_ptr<vrx::ExcPMIAnnotationView>& view : set->views())
        {
            for (const auto& datum : view->datums())
            {
                m_labels[datum->id()] = datum->label();
            }
            for (const auto& target : view->datumTargets())
            {
                m_labels[target->id()] = target->label();
            }
        }
        for (const std::shared_ptr<vrx::ExcPMICapture>& capture : set->captures())
        {
            for (const mp::wstring& id : capture->annotationIds())
            {
                m_shownIn[id].push_back(capture->name());
            }
        }
    }
}

void ReceivedPmi::add(const vrx::ExcBlockGeometry& geometry)
{
    const RestoredBodies bodies(geometry);
    m_bodyCounts[geometry.blockId()] = bodies.count();
    for (std::size_t i = 0; i < bodies.count(); ++i)
    {
        m_bodies[bodies.id(i)] = {geometry.blockId(),
                                  i,
                                  {{EType::Face, count(bodies.body(i), api_get_faces)},
                                   {EType::Edge, count(bodies.body(i), api_get_edges)},
                                   {EType::Vertex, count(bodies.body(i), api_get_vertices)}}};
    }
}

std::size_t ReceivedPmi::bodyCount(std::uint64_t block) const
{
    const auto found = m_bodyCounts.find(block);
    return found != m_bodyCounts.end() ? found->second : 0;
}

std::vector<PmiLink> ReceivedPmi::links(const vrx::ExcPMIAnnotation& annotation) const
{
    std::vector<PmiLink> links;
    for (const std::shared_ptr<vrx::ExcEntity>& entity : annotation.linkedElements())
    {
        links.push_back(link(*entity));
    }
    return links;
}

PmiLink ReceivedPmi::link(const vrx::ExcEntity& entity) const
{
    PmiLink link;
    if (!entity.fsp())
    {
        link.mechanicalId = entity.id();
        return link;
    }
    const std::uint64_t id = entity.fsp()->bodyId();
    const vrx::ExcSubentId& part = entity.fsp()->subentId();
    const auto found = m_bodies.find(id);
    if (found == m_bodies.end())
    {
        link.mechanicalId = idInScene(std::to_string(id), part);
        return link;
    }
    const Body& body = found->second;
    const auto count = body.counts.find(part.type());
    link.mechanicalId = idInScene(std::to_string(body.position), part);
    link.type = count != body.counts.end() ? part.type() : EType::Body;
    link.resolved = link.type == EType::Body || part.index() < count->second;
    link.block = body.block;
    link.body = body.position;
    link.index = link.type == EType::Body ? 0 : part.index();
    return link;
}

std::vector<mp::wstring> ReceivedPmi::shownIn(const mp::wstring& id) const
{
    const auto found = m_shownIn.find(id);
    return found != m_shownIn.end() ? found->second : std::vector<mp::wstring>();
}

mp::wstring ReceivedPmi::label(const mp::wstring& id) const
{
    const auto found = m_labels.find(id);
    return found != m_labels.end() ? found->second : mp::wstring();
}
