#include "vrx_api/geometry/block_geometry.h"

#include "kolt/log.h"
#include "mp/exception.h"
#include "vrx_api/exchange/envelope_keys.h"
#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/geometry/shared_acis_buffer.h"
#include "vrx_api/json/shapes.h"

namespace vrx
{

const wstring ExcBlockGeometry::s_objectName = WIDE("exc_block_geometry");
static const StaticExchangeObject<ExcBlockGeometry> s_prototype;

namespace
{

// The buffer of the bodies: its name is where a reader finds them, and a writer has filled it before.
template <class Source, class Flag, class Buffer>
struct BufferName
{
    Source& source;
    Flag& isLoaded;
    Buffer& buffer;
};
template <class Source, class Flag, class Buffer>
BufferName(Source&, Flag&, Buffer&) -> BufferName<Source, Flag, Buffer>;

template <class Value, class Buffer>
bool decode(const Value& value, const BufferName<wstring, bool, Buffer>& field)
{
    const bool taken = decode(value, field.source);
    field.isLoaded = field.isLoaded && !taken;
    return taken;
}

template <class Out, class Buffer>
void encode(Out& out, const BufferName<const wstring, const bool, Buffer>& field)
{
    if (field.buffer == nullptr)
    {
        kolt::log(kolt::kError, "ExcBlockGeometry: ACIS buffer was not initialized in shared memory.");
        out.null();
        return;
    }
    encode(out, field.buffer->name());
}

template <class Buffer>
void outline(Shape& shape, const BufferName<const wstring, const bool, Buffer>& field)
{
    outline(shape, field.source);
    shape.mayBeNull = true;
}

} // namespace

template <class Self, class Fields>
void ExcBlockGeometry::describe(Self& self, Fields& fields)
{
    fields.expected(WIDE("block_id"), "ExcBlockGeometry: Failed to read block Id from JSON object.",
                    reference(EIdSpace::Block, self.m_blockId));
    fields.expected(kObjectBufferName, "ExcBlockGeometry: Failed to read shared memory buffer name.",
                    BufferName{self.m_source, self.m_loaded, self.m_buffer});
    fields.always(WIDE("acis_body_ids"), identity(EIdSpace::Body, replaced(self.m_bodyIds)));
}
template struct Described<ExcBlockGeometry>;

void ExcBlockGeometry::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcBlockGeometry");
}

// Bodies cross as text. Two walks into bytes would log a missing buffer twice.
void ExcBlockGeometry::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    kolt::trace();
    writeMembers(*this, value, allocator);
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

const wstring& ExcBlockGeometry::bufferName() const
{
    return m_buffer == nullptr ? m_source : m_buffer->name();
}

std::uint64_t ExcBlockGeometry::getEntityId(ENTITY* entity)
{
    return reinterpret_cast<std::uintptr_t>(entity); // NOLINT: the address is the id
}

} // namespace vrx
