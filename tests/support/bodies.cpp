#include "tests/support/bodies.h"

#include "kernel_standin/checksum.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

namespace test
{

BODY* Bodies::addBrick(const std::string& payload)
{
    static constexpr int kFaces[6][4] = {{0, 1, 2, 3}, {4, 5, 6, 7}, {0, 1, 5, 4},
                                         {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}};
    auto* const body = new BODY;
    auto* const lump = new LUMP;
    auto* const shell = new SHELL;
    body->setPayload({payload.begin(), payload.end()});
    body->addPart(lump);
    lump->addPart(shell);
    std::map<int, VERTEX*> vertices;
    std::map<std::pair<int, int>, EDGE*> edges;
    for (const auto& corners : kFaces)
    {
        auto* const face = new FACE;
        auto* const loop = new LOOP;
        shell->addPart(face);
        face->addPart(loop);
        for (int i = 0; i < 4; ++i)
        {
            const auto ends = std::minmax(corners[i], corners[(i + 1) % 4]);
            EDGE*& edge = edges[ends];
            if (edge == nullptr)
            {
                edge = new EDGE;
                for (const int end : {ends.first, ends.second})
                {
                    VERTEX*& vertex = vertices[end];
                    vertex = vertex == nullptr ? new VERTEX : vertex;
                    edge->addPart(vertex);
                }
            }
            loop->addPart(edge);
        }
    }
    list().add(body);
    return body;
}

std::string Bodies::describe() const
{
    std::string text;
    for (int i = 0; i < list().count(); ++i)
    {
        ENTITY_LIST faces;
        ENTITY_LIST edges;
        ENTITY_LIST vertices;
        api_get_faces(list()[i], faces);
        api_get_edges(list()[i], edges);
        api_get_vertices(list()[i], vertices);
        if (const auto* const body = dynamic_cast<const BODY*>(list()[i]))
        {
            text.append(body->payload().begin(), body->payload().end());
        }
        for (const ENTITY_LIST* const parts : {&faces, &edges, &vertices})
        {
            text += ' ' + std::to_string(parts->count());
        }
        text += '\n';
    }
    return text;
}

MemoryFile::MemoryFile(std::string bytes)
    : m_bytes(std::move(bytes))
{
}

FilePosition MemoryFile::set_mark()
{
    return static_cast<FilePosition>(m_position);
}

FilePosition MemoryFile::goto_mark(FilePosition position)
{
    m_position = static_cast<std::size_t>(position);
    return position;
}

std::size_t MemoryFile::read(void* buffer, std::size_t length)
{
    const std::size_t count = m_bytes.copy(static_cast<char*>(buffer), length, m_position);
    m_position += count;
    return count;
}

void MemoryFile::write(const void* data, std::size_t length)
{
    m_bytes.resize(std::max(m_bytes.size(), m_position + length));
    if (length != 0)
    {
        std::memcpy(&m_bytes[m_position], data, length);
    }
    m_position += length;
}

std::string saved(const ENTITY_LIST& list)
{
    MemoryFile file;
    return api_save_entity_list_file(&file, list, nullptr).ok() != 0 ? file.bytes() : std::string();
}

std::string framed(const std::string& records)
{
    MemoryFile file;
    file.writeBytes("ENTLIST\x1A", 8);
    file.writeNumber(1, 4);
    file.writeNumber(records.size(), 8);
    file.writeBytes(records.data(), records.size());
    Checksum checksum;
    checksum.add(records.data(), records.size());
    file.writeNumber(checksum.value(), 4);
    return file.bytes();
}

std::string restoreError(const std::string& bytes, ENTITY_LIST& list)
{
    MemoryFile file(bytes);
    const outcome result = api_restore_entity_list_file(&file, list, nullptr);
    return result.ok() != 0 ? std::string() : result.get_error_info()->error_message();
}

} // namespace test
