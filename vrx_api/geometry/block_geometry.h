#pragma once

#include "vrx_api/exchange/exchange_object.h"

#include <cstdint>
#include <memory>
#include <vector>

// The modelling kernel's classes, which only those who handle bodies need to know.
class ENTITY;
class ENTITY_LIST;

namespace vrx
{

class ExcSharedAcisBuffer;

/// The bodies of one block, in the kernel's own format in a shared memory buffer that the JSON form names, with an id
/// for each body. Copies share the buffer, which is closed when the last of them goes; a buffer that `load` opened is
/// then removed from the system. Copies count as one object to threads, and the kernel's own rules for threads hold
/// where bodies are saved and restored.
class VRX_API ExcBlockGeometry : public IExchangeObject
{
public:
    static const wstring s_objectName;
    static const wstring& objName() { return s_objectName; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    const wstring& objectName() const override;
    std::shared_ptr<IExchangeObject> clone() const override;
    bool isLoaded() const override;

    /// Opens the buffer that was read. A failure is logged.
    void load() override;

    std::uint64_t blockId() const { return m_blockId; }
    void setBlockId(std::uint64_t id) { m_blockId = id; }

    /// Whether the buffer is removed from the system when the last copy of this object goes.
    void own(bool value);

    /// The name of the buffer in shared memory, or empty while there is none.
    const wstring& bufferName() const;

    /// Saves the bodies into a new buffer. A failure is logged and gives false; only a user's interrupt of the kernel,
    /// or a kernel that can't be entered, passes out as the kernel's exception, here and in `getGeometry`. Throws
    /// `std::length_error` when 4 GiB or more are to be compressed, and `std::logic_error` when the library was built
    /// without a kernel.
    bool setGeometry(const ENTITY_LIST& entities, bool compress);

    /// Restores the bodies, and appends them and their ids, both in the order in which they were saved; as often as
    /// wanted. A failure is logged and gives false. Throws `mp::SharedMemoryException`, `std::length_error` for what
    /// is above the limit of the read rules, `std::runtime_error` for damaged compressed data and what a strict reader
    /// refuses, and `std::logic_error` when the library was built without a kernel.
    bool getGeometry(ENTITY_LIST& entities, std::vector<std::uint64_t>& ids) const;

    /// The id of a body: its address, which is unique within one run of the producer and a mere label elsewhere.
    static std::uint64_t getEntityId(ENTITY* entity);

private:
    friend struct Described<ExcBlockGeometry>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    bool m_own = false;
    std::uint64_t m_blockId = 0;
    std::shared_ptr<ExcSharedAcisBuffer> m_buffer;
    std::vector<std::uint64_t> m_bodyIds;
};

} // namespace vrx
