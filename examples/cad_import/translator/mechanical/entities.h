#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <cstdint>
#include <memory>

/// References of the mechanical data to what it tells of.
namespace entities
{

inline std::shared_ptr<vrx::ExcEntity> ofBody(std::uint64_t bodyId, const vrx::ExcSubentId& part)
{
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Fsp);
    entity->setFsp(std::make_shared<vrx::ExcFullSubentPath>(bodyId, part));
    return entity;
}

/// What belongs to no body, by its mechanical id.
inline std::shared_ptr<vrx::ExcEntity> ofScene(const mp::wstring& id)
{
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Visu);
    entity->setId(id);
    return entity;
}

} // namespace entities
