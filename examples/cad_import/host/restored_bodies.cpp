#include "restored_bodies.h"

#include "model_failure.h"

#include <string>

RestoredBodies::RestoredBodies(const vrx::ExcBlockGeometry& geometry)
{
    const bool restored = geometry.getGeometry(m_bodies.list(), m_ids);
    if (!restored || m_ids.size() != static_cast<std::size_t>(m_bodies.list().count()))
    {
        throw ModelFailure("The bodies of block " + std::to_string(geometry.blockId()) + " can not be restored.");
    }
}
