#pragma once

#include "received_bodies.h"

#include <cstdint>
#include <vector>

struct PartLayer
{
    std::int32_t id = 0;
    mp::wstring name;
    std::vector<mp::wstring> entities; // mechanical ids
    bool isHidden = false;             // all that is drawn on it is, and there is some
};

/// What is known of a body, a face, an edge or an annotation beside its shape.
struct PartEntity
{
    mp::wstring entity; // a mechanical id
    std::vector<mp::wstring> names;
    mp::wstring name;
    bool isHidden = false;
    mp::wstring lineType; // as on the wire
    double lineThickness = 0;
};

std::vector<PartEntity> partEntities(const vrx::ExcEntityData& data, std::uint64_t block, const ReceivedBodies& bodies);

std::vector<PartLayer> partLayers(const vrx::ExcMechanicalMiscData& data, std::uint64_t block,
                                  const ReceivedBodies& bodies, const std::vector<PartEntity>& entities);
