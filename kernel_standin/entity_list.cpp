#include "kernel_standin/entity_list.h"

ENTITY* ENTITY_LIST::operator[](int index) const
{
    return index >= 0 && index < count() ? m_entities[static_cast<std::size_t>(index)] : nullptr;
}

int ENTITY_LIST::lookup(const ENTITY* entity) const
{
    const auto found = m_index.find(entity);
    return found == m_index.end() ? -1 : found->second;
}

int ENTITY_LIST::add(ENTITY* entity)
{
    if (entity == nullptr)
    {
        return -1;
    }
    const auto [place, added] = m_index.emplace(entity, count());
    if (added)
    {
        m_entities.push_back(entity);
    }
    return place->second;
}

void ENTITY_LIST::clear()
{
    m_entities.clear();
    m_index.clear();
}
