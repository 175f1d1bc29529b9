#pragma once

#include "kernel_standin/kernel_standin.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The bodies of one block, restored from what a translator sent; they are destroyed with this object.
class RestoredBodies
{
public:
    /// Throws ModelFailure when they can't be restored.
    explicit RestoredBodies(const vrx::ExcBlockGeometry& geometry);

    std::size_t count() const { return m_ids.size(); }
    ENTITY& body(std::size_t position) const { return *m_bodies.list()[static_cast<int>(position)]; }
    std::uint64_t id(std::size_t position) const { return m_ids[position]; }

private:
    OwnedEntities m_bodies;
    std::vector<std::uint64_t> m_ids;
};
