#include "kolt/log.h"
#include "mp/exception.h"
#include "vrx_api/geometry/acis_call.h"
#include "vrx_api/geometry/block_geometry.h"
#include "vrx_api/geometry/shared_acis_buffer.h"

namespace vrx
{

bool ExcBlockGeometry::setGeometry(const ENTITY_LIST& entities, bool compress)
{
    kolt::trace();
    m_bodyIds.clear();
    try
    {
        // A buffer without its bodies goes with this object.
        m_buffer = std::make_shared<ExcSharedAcisBuffer>(generateUUID(), true);
    }
    catch (const mp::SharedMemoryException& error)
    {
        kolt::log(kolt::kError, "Failed to initialize shared ACIS buffer: ", error.what());
        return false;
    }
    const outcome saved = callAcis([&] {
        for (int i = 0; i < entities.count(); ++i)
        {
            m_bodyIds.push_back(getEntityId(entities[i]));
        }
        return api_save_entity_list_file(m_buffer.get(), entities, nullptr);
    });
    if (!saved.ok())
    {
        kolt::log(kolt::kError, "Failed to write geometry into shared ACIS buffer: ", errorText(saved));
        return false;
    }
    try
    {
        m_buffer->flush(compress);
    }
    catch (const mp::SharedMemoryException& error)
    {
        kolt::log(kolt::kError, "Failed to flush ACIS data into shared memory buffer: ", error.what());
        return false;
    }
    m_buffer->setRemoveOnClose(m_own);
    return true;
}

bool ExcBlockGeometry::getGeometry(ENTITY_LIST& entities, std::vector<std::uint64_t>& ids) const
{
    kolt::trace();
    if (m_buffer == nullptr)
    {
        kolt::log(kolt::kError, "Failed to get geometry from shared memory buffer: Invalid buffer object.");
        return false;
    }
    m_buffer->load(m_readRules);
    const outcome restored = callAcis([&] { return api_restore_entity_list_file(m_buffer.get(), entities, nullptr); });
    if (!restored.ok())
    {
        kolt::log(kolt::kError, "Failed to get geometry from shared memory buffer: ", errorText(restored));
        return false;
    }
    ids.insert(ids.end(), m_bodyIds.begin(), m_bodyIds.end());
    return true;
}

} // namespace vrx
