#include "vrx_api/common/subent_id.h"
#include "vrx_api/geometry/block_geometry.h"

#include <stdexcept>

// What asks the modelling kernel, where the library is built without one.
namespace vrx
{

[[noreturn]] static void throwNoKernel()
{
    throw std::logic_error("vrx_api was built without a modelling kernel");
}

bool ExcBlockGeometry::setGeometry(const ENTITY_LIST& /*entities*/, bool /*compress*/)
{
    throwNoKernel();
}

bool ExcBlockGeometry::getGeometry(ENTITY_LIST& /*entities*/, std::vector<std::uint64_t>& /*ids*/) const
{
    throwNoKernel();
}

ENTITY* ExcSubentId::getOwnerBody(ENTITY* /*entity*/)
{
    throwNoKernel();
}

void ExcSubentId::fillSubentId(ExcSubentId& /*target*/, ENTITY* /*entity*/)
{
    throwNoKernel();
}

} // namespace vrx
