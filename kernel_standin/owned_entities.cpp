#include "kernel_standin/owned_entities.h"

#include "kernel_standin/topology.h"

OwnedEntities::~OwnedEntities()
{
    // Gathered before the first is destroyed: those of the list may hold the same edges and vertices.
    ENTITY_LIST all;
    for (int i = 0; i < m_list.count(); ++i)
    {
        if (m_list[i]->owner() == nullptr)
        {
            collect(m_list[i], all);
        }
    }
    destroyEach(all);
}
