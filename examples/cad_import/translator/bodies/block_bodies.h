#pragma once

#include "kernel_standin/kernel_standin.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <TopoDS_Shape.hxx>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// Makes the bodies of an import. They live as long as this object, so that their ids, which are addresses, stay
/// unique.
class BlockBodies
{
public:
    /// The solids of a block, if any, as bodies in shared memory, in the order of the solids. The buffer is removed
    /// with the object until `own(false)` is called. Throws TranslationError when they could not be put there.
    std::shared_ptr<vrx::ExcBlockGeometry> make(const vrx::ExcBlock& block, const TopoDS_Shape& shape);

    /// The ids of the bodies that were made of a block, in their order.
    const std::vector<std::uint64_t>& ids(std::uint64_t block) const;

private:
    OwnedEntities m_all;
    std::map<std::uint64_t, std::vector<std::uint64_t>> m_ids; // by block
};

/// A line for each of these bodies, with what is measured of its solid here.
std::vector<std::string> figuresOfBodies(const vrx::ExcBlock& block, const TopoDS_Shape& shape);
