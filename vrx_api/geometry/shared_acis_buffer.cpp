#include "vrx_api/geometry/shared_acis_buffer.h"

#include "kolt/log.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/shared_content.h"

#include <new>
#include <string>

namespace vrx
{

static constexpr int kDefaultCompression = -1;

ExcSharedAcisBuffer::ExcSharedAcisBuffer(const wstring& name, bool removeOnClose)
    : m_stream(std::ios::in | std::ios::out | std::ios::binary)
{
    init(name, removeOnClose);
}

ExcSharedAcisBuffer::~ExcSharedAcisBuffer() = default;

void ExcSharedAcisBuffer::init(const wstring& name, bool removeOnClose)
{
    kolt::trace();
    m_sharedBuffer.open(name, removeOnClose);
}

void ExcSharedAcisBuffer::flush(bool compress)
{
    kolt::trace();
    const std::string bytes = m_stream.str();
    if (bytes.empty())
    {
        m_sharedBuffer.clear();
        return;
    }
    if (!compress)
    {
        m_sharedBuffer.write(bytes.data(), bytes.size());
        return;
    }
    Bytes compressed;
    Compressor::compress(compressed, bytes.data(), bytes.size(), kDefaultCompression);
    m_sharedBuffer.write(compressed.data(), compressed.size());
}

void ExcSharedAcisBuffer::load(const ReadRules& rules)
{
    kolt::trace();
    cleanUp();
    // What an earlier load left, which may have been longer, is replaced.
    const PlainContent content(m_sharedBuffer, rules);
    m_stream.str(std::string(content.data(), content.size()));
}

void ExcSharedAcisBuffer::cleanUp()
{
    kolt::trace();
    m_stream.clear();
    m_position = 0;
}

FilePosition ExcSharedAcisBuffer::set_mark()
{
    return m_position;
}

FilePosition ExcSharedAcisBuffer::goto_mark(FilePosition position)
{
    m_stream.clear();
    m_stream.seekg(position, std::ios::beg);
    m_stream.seekp(position, std::ios::beg);
    m_position = position;
    return m_position;
}

std::size_t ExcSharedAcisBuffer::read(void* buffer, std::size_t length)
{
    const std::streamsize count = m_stream.readsome(static_cast<char*>(buffer), static_cast<std::streamsize>(length));
    // At the end of the data the stream would tell no position.
    m_stream.clear(m_stream.rdstate() & ~std::ios::eofbit);
    m_position = m_stream.tellg();
    return static_cast<std::size_t>(count);
}

void ExcSharedAcisBuffer::write(const void* data, std::size_t length)
{
    m_stream.write(static_cast<const char*>(data), static_cast<std::streamsize>(length));
    if (!m_stream)
    {
        // The only way in which a stream in memory fails: without this a body would be cut without a word.
        throw std::bad_alloc();
    }
    m_position = m_stream.tellp();
}

} // namespace vrx
