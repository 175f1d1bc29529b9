#pragma once

#include "kernel_standin/entity.h"

#include <unordered_map>
#include <vector>

/// Entities in the order in which they were added, each once. The list does not own them.
class KERNEL_STANDIN ENTITY_LIST
{
public:
    int count() const { return static_cast<int>(m_entities.size()); }

    /// Null for an index outside the list.
    ENTITY* operator[](int index) const;

    /// The entity's index, or -1.
    int lookup(const ENTITY* entity) const;

    /// Appends an entity that isn't in the list yet; returns its index, and -1 for null, which is not added.
    int add(ENTITY* entity);

    void clear();

private:
    std::vector<ENTITY*> m_entities;
    std::unordered_map<const ENTITY*, int> m_index;
};
