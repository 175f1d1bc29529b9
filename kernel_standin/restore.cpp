#include "kernel_standin/api.h"
#include "kernel_standin/call.h"
#include "kernel_standin/checksum.h"
#include "kernel_standin/save_format.h"
#include "kernel_standin/topology.h"

#include <algorithm>
#include <utility>

namespace
{

// A count that lies asks for no more memory than this ahead of the data.
constexpr std::size_t kChunk = std::size_t{1} << 20U;

void check(bool holds, const char* text)
{
    if (!holds)
    {
        raiseError(KernelError::BadData, text);
    }
}

/// Reads within the records and sums them up.
class RecordFile
{
public:
    RecordFile(FileInterface& file, std::uint64_t size)
        : m_file(file)
        , m_left(size)
    {
    }

    void readBytes(void* buffer, std::size_t length)
    {
        take(length);
        m_file.readBytes(buffer, length);
        m_checksum.add(buffer, length);
    }

    std::uint64_t readNumber(std::size_t size)
    {
        take(size);
        const std::uint64_t number = m_file.readNumber(size);
        m_checksum.addNumber(number, size);
        return number;
    }

    std::uint64_t left() const { return m_left; }
    std::uint32_t checksum() const { return m_checksum.value(); }

private:
    void take(std::uint64_t length)
    {
        check(length <= m_left, "An entity reaches beyond the saved data");
        m_left -= length;
    }

    FileInterface& m_file;
    std::uint64_t m_left;
    Checksum m_checksum;
};

LoneEntity makeEntity(std::uint64_t type)
{
    switch (static_cast<EntityType>(type))
    {
    case EntityType::Body:
        return LoneEntity(new BODY);
    case EntityType::Lump:
        return LoneEntity(new LUMP);
    case EntityType::Shell:
        return LoneEntity(new SHELL);
    case EntityType::Face:
        return LoneEntity(new FACE);
    case EntityType::Loop:
        return LoneEntity(new LOOP);
    case EntityType::Edge:
        return LoneEntity(new EDGE);
    case EntityType::Vertex:
        return LoneEntity(new VERTEX);
    case EntityType::Wire:
        return LoneEntity(new WIRE);
    }
    raiseError(KernelError::BadData, "An entity is of no known type");
}

/// Reads the records, and gives the entities away only when all of them are in order.
class RecordReader
{
public:
    explicit RecordReader(RecordFile& file)
        : m_file(file)
    {
    }

    void read()
    {
        const std::uint64_t count = m_file.readNumber(kIndexSize);
        for (std::uint64_t i = 0; i < count; ++i)
        {
            readEntity();
        }
        const std::uint64_t listed = m_file.readNumber(kIndexSize);
        for (std::uint64_t i = 0; i < listed; ++i)
        {
            ENTITY* const entity = entityAt(m_file.readNumber(kIndexSize));
            check(m_list.add(entity) == static_cast<int>(i), "An entity is listed twice");
        }
        link();
    }

    void release(ENTITY_LIST& entities)
    {
        ENTITY_LIST grown = entities;
        for (int i = 0; i < m_list.count(); ++i)
        {
            grown.add(m_list[i]);
        }
        for (Record& record : m_records)
        {
            static_cast<void>(record.entity.release());
        }
        entities = std::move(grown);
    }

private:
    struct Record
    {
        LoneEntity entity;
        std::uint64_t owner = 0;
        std::vector<std::uint32_t> parts;
    };

    void readEntity()
    {
        Record record;
        record.entity = makeEntity(m_file.readNumber(kTypeSize));
        record.owner = m_file.readNumber(kIndexSize);
        const std::uint64_t parts = m_file.readNumber(kIndexSize);
        for (std::uint64_t i = 0; i < parts; ++i)
        {
            record.parts.push_back(static_cast<std::uint32_t>(m_file.readNumber(kIndexSize)));
        }
        if (auto* const body = dynamic_cast<BODY*>(record.entity.get()))
        {
            body->setPayload(readPayload());
        }
        m_records.push_back(std::move(record));
    }

    std::vector<char> readPayload()
    {
        const std::uint64_t size = m_file.readNumber(kLengthSize);
        check(size <= m_file.left(), "An entity reaches beyond the saved data");
        std::vector<char> payload;
        while (payload.size() < size)
        {
            const std::size_t done = payload.size();
            payload.resize(done + static_cast<std::size_t>(std::min<std::uint64_t>(size - done, kChunk)));
            m_file.readBytes(payload.data() + done, payload.size() - done);
        }
        return payload;
    }

    ENTITY* entityAt(std::uint64_t index) const
    {
        check(index < m_records.size(), "An entity refers to one that is not saved");
        return m_records[static_cast<std::size_t>(index)].entity.get();
    }

    void link()
    {
        std::vector<bool> held(m_records.size());
        for (std::size_t i = 0; i < m_records.size(); ++i)
        {
            ENTITY* const holder = m_records[i].entity.get();
            for (const std::uint32_t index : m_records[i].parts)
            {
                ENTITY* const part = entityAt(index);
                check(mayHold(holder->type(), part->type()), "An entity holds a part that it can't hold");
                check(!held[index] || mayBeShared(part->type()), "A part is held twice");
                held[index] = true;
                EntityAccess::appendPart(*holder, part);
                if (m_records[index].owner == i + 1)
                {
                    EntityAccess::setOwner(*part, holder);
                }
            }
        }
        for (std::size_t i = 0; i < m_records.size(); ++i)
        {
            ENTITY* const entity = m_records[i].entity.get();
            check((entity->owner() != nullptr) == held[i] && (m_records[i].owner != 0) == held[i],
                  "An entity's owner does not hold it");
            check(held[i] || m_list.lookup(entity) >= 0, "An entity belongs to nothing");
        }
    }

    RecordFile& m_file;
    std::vector<Record> m_records;
    ENTITY_LIST m_list;
};

void restore(FileInterface& file, ENTITY_LIST& entities)
{
    std::array<char, kMagic.size()> magic{};
    file.readBytes(magic.data(), magic.size());
    check(magic == kMagic, "The data hold no saved entities");
    check(file.readNumber(kVersionSize) == kVersion, "The entities were saved by another version");

    RecordFile recordFile(file, file.readNumber(kLengthSize));
    RecordReader records(recordFile);
    records.read();
    check(recordFile.left() == 0, "The saved data are longer than their entities");
    check(file.readNumber(kChecksumSize) == recordFile.checksum(), "The saved data are damaged");
    records.release(entities);
}

} // namespace

outcome api_restore_entity_list_file(FileInterface* file, ENTITY_LIST& entities, AcisOptions*)
{
    return apiCall("api_restore_entity_list_file", [&] {
        if (file == nullptr)
        {
            raiseError(KernelError::NullArgument, "No file is given");
        }
        restore(*file, entities);
    });
}
