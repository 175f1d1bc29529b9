#pragma once

#include "kernel_standin/entity_list.h"

/// Entities of a list that are destroyed with this object: those without an owner, with all that they hold, each once
/// whatever the order in the list. A part may be listed beside the body that it goes with. Nothing outside the list may
/// hold any of what is destroyed.
class KERNEL_STANDIN OwnedEntities
{
public:
    OwnedEntities() = default;
    OwnedEntities(const OwnedEntities&) = delete;
    OwnedEntities& operator=(const OwnedEntities&) = delete;
    ~OwnedEntities();

    ENTITY_LIST& list() { return m_list; }
    const ENTITY_LIST& list() const { return m_list; }

private:
    ENTITY_LIST m_list;
};
