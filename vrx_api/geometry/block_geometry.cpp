#include "vrx_api/geometry/block_geometry.h"

#include "kolt/log.h"
#include "mp/exception.h"
#include "vrx_api/exchange/envelope_keys.h"
#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/geometry/acis_call.h"
#include "vrx_api/geometry/shared_acis_buffer.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"
#include "vrx_api/json/kind.h"

namespace vrx
{

const wstring ExcBlockGeometry::s_objectName = WIDE("exc_block_geometry");
static const StaticExchangeObject<ExcBlockGeometry> s_prototype;

static constexpr Key kBlockId = WIDE("block_id");
static constexpr Key kBodyIds = WIDE("acis_body_ids");

void ExcBlockGeometry::readObject(const JsonValue& value)
{
    kolt::trace();
    if (!isObject(value, "ExcBlockGeometry"))
    {
        return;
    }
    const JsonValue* const blockId = find(value, kBlockId);
    if (blockId != nullptr && blockId->IsUint64())
    {
        m_blockId = blockId->GetUint64();
    }
    else
    {
        kolt::log(kolt::kError, "ExcBlockGeometry: Failed to read block Id from JSON object.");
    }
    const JsonValue* const name = find(value, kObjectBufferName);
    if (name != nullptr && name->IsString())
    {
        m_source = textOf(*name);
        m_loaded = false;
    }
    else
    {
        kolt::log(kolt::kError, "ExcBlockGeometry: Failed to read shared memory buffer name.");
    }
    const JsonValue* const bodyIds = find(value, kBodyIds);
    if (bodyIds != nullptr && bodyIds->IsArray())
    {
        m_bodyIds.clear();
        for (const JsonValue& id : bodyIds->GetArray())
        {
            if (id.IsUint64())
            {
                m_bodyIds.push_back(id.GetUint64());
            }
        }
    }
}

void ExcBlockGeometry::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    kolt::trace();
    value.SetObject();
    addMember(value, kBlockId, treeOf(m_blockId, allocator), allocator);
    if (m_buffer != nullptr)
    {
        addMember(value, kObjectBufferName, treeOf(m_buffer->name(), allocator), allocator);
    }
    else
    {
        addMember(value, kObjectBufferName, JsonValue(), allocator);
        kolt::log(kolt::kError, "ExcBlockGeometry: ACIS buffer was not initialized in shared memory.");
    }
    addMember(value, kBodyIds, treeOf(m_bodyIds, allocator), allocator);
}

const wstring& ExcBlockGeometry::objectName() const
{
    return s_objectName;
}

std::shared_ptr<IExchangeObject> ExcBlockGeometry::clone() const
{
    return std::make_shared<ExcBlockGeometry>();
}

bool ExcBlockGeometry::isLoaded() const
{
    return m_loaded && m_buffer != nullptr;
}

void ExcBlockGeometry::load()
{
    kolt::trace();
    if (m_buffer != nullptr)
    {
        return;
    }
    try
    {
        m_buffer = std::make_shared<ExcSharedAcisBuffer>(m_source, true);
        m_loaded = true;
    }
    catch (const mp::SharedMemoryException& error)
    {
        kolt::log(kolt::kError, "Failed to load ACIS buffer: ", error.what());
        m_loaded = false;
    }
}

void ExcBlockGeometry::own(bool value)
{
    m_own = value;
    if (m_buffer != nullptr)
    {
        m_buffer->setRemoveOnClose(value);
    }
}

bool ExcBlockGeometry::setGeometry(const ENTITY_LIST& entities, bool compress)
{
    kolt::trace();
    m_bodyIds.clear();
    try
    {
        m_buffer = std::make_shared<ExcSharedAcisBuffer>(generateUUID(), m_own);
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
    m_buffer->load(m_sizeLimit);
    const outcome restored = callAcis([&] { return api_restore_entity_list_file(m_buffer.get(), entities, nullptr); });
    if (!restored.ok())
    {
        kolt::log(kolt::kError, "Failed to get geometry from shared memory buffer: ", errorText(restored));
        return false;
    }
    ids.insert(ids.end(), m_bodyIds.begin(), m_bodyIds.end());
    return true;
}

std::uint64_t ExcBlockGeometry::getEntityId(ENTITY* entity)
{
    return reinterpret_cast<std::uintptr_t>(entity); // NOLINT: the address is the id
}

} // namespace vrx
