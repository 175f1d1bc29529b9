#include "kernel_standin/api.h"
#include "kernel_standin/call.h"
#include "kernel_standin/checksum.h"
#include "kernel_standin/save_format.h"
#include "kernel_standin/topology.h"

namespace
{

/// Writes the records, and sums them up on the way.
class RecordWriter
{
public:
    RecordWriter(FileInterface& file, const ENTITY_LIST& list)
        : m_file(file)
        , m_list(list)
    {
        for (int i = 0; i < list.count(); ++i)
        {
            collect(list[i], m_all);
        }
        findOwners();
    }

    void write()
    {
        writeNumber(static_cast<std::uint64_t>(m_all.count()), kIndexSize);
        for (int i = 0; i < m_all.count(); ++i)
        {
            writeEntity(*m_all[i], m_owners[static_cast<std::size_t>(i)]);
        }
        writeNumber(static_cast<std::uint64_t>(m_list.count()), kIndexSize);
        for (int i = 0; i < m_list.count(); ++i)
        {
            writeIndex(m_list[i]);
        }
    }

    std::uint32_t checksum() const { return m_checksum.value(); }

private:
    // An owner that is not saved itself gives way to the first that holds the entity.
    void findOwners()
    {
        m_owners.resize(static_cast<std::size_t>(m_all.count()));
        for (int i = 0; i < m_all.count(); ++i)
        {
            for (ENTITY* const part : m_all[i]->parts())
            {
                const ENTITY*& owner = m_owners[static_cast<std::size_t>(m_all.lookup(part))];
                if (owner == nullptr || part->owner() == m_all[i])
                {
                    owner = m_all[i];
                }
            }
        }
    }

    void writeEntity(const ENTITY& entity, const ENTITY* owner)
    {
        writeNumber(static_cast<std::uint64_t>(entity.type()), kTypeSize);
        writeNumber(owner == nullptr ? 0 : static_cast<std::uint64_t>(m_all.lookup(owner)) + 1, kIndexSize);
        writeNumber(entity.parts().size(), kIndexSize);
        for (const ENTITY* const part : entity.parts())
        {
            writeIndex(part);
        }
        if (const auto* const body = dynamic_cast<const BODY*>(&entity))
        {
            writeNumber(body->payload().size(), kLengthSize);
            m_file.writeBytes(body->payload().data(), body->payload().size());
            m_checksum.add(body->payload().data(), body->payload().size());
        }
    }

    void writeIndex(const ENTITY* entity) { writeNumber(static_cast<std::uint64_t>(m_all.lookup(entity)), kIndexSize); }

    void writeNumber(std::uint64_t value, std::size_t size)
    {
        m_file.writeNumber(value, size);
        m_checksum.addNumber(value, size);
    }

    FileInterface& m_file;
    const ENTITY_LIST& m_list;
    ENTITY_LIST m_all;
    std::vector<const ENTITY*> m_owners;
    Checksum m_checksum;
};

void save(FileInterface& file, const ENTITY_LIST& entities)
{
    file.writeBytes(kMagic.data(), kMagic.size());
    file.writeNumber(kVersion, kVersionSize);

    // The size is known only behind the records.
    const FilePosition sizeMark = file.set_mark();
    file.writeNumber(0, kLengthSize);
    const FilePosition start = file.set_mark();
    RecordWriter records(file, entities);
    records.write();
    const FilePosition end = file.set_mark();
    file.goto_mark(sizeMark);
    file.writeNumber(static_cast<std::uint64_t>(end - start), kLengthSize);
    file.goto_mark(end);

    file.writeNumber(records.checksum(), kChecksumSize);
}

} // namespace

outcome api_save_entity_list_file(FileInterface* file, const ENTITY_LIST& entities, AcisOptions*)
{
    return apiCall("api_save_entity_list_file", [&] {
        if (file == nullptr)
        {
            raiseError(KernelError::NullArgument, "No file is given");
        }
        save(*file, entities);
    });
}
