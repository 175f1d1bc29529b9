#include "capture/capture_writer.h"

#include "capture/capture_bytes.h"

#include <algorithm>
#include <system_error>

namespace capture
{

namespace
{

// Summed and written while it is in the processor's cache.
constexpr std::uint64_t kPiece = 1U << 20U;

void appendText(std::string& bytes, const mp::wstring& text)
{
    bytes.reserve(bytes.size() + text.size() * 2 + kFrameHeadSize);
    for (const mp::wchar unit : text)
    {
        appendNumber(bytes, static_cast<std::uint16_t>(unit));
    }
}

void appendName(std::string& bytes, const mp::wstring& name)
{
    appendNumber(bytes, static_cast<std::uint32_t>(name.size()));
    appendText(bytes, name);
}

std::string unitsOf(const mp::wstring& text)
{
    std::string bytes;
    appendText(bytes, text);
    return bytes;
}

} // namespace

CaptureWriter::CaptureWriter(const std::filesystem::path& path, bool overwrite)
    : m_file(path, overwrite)
{
    std::string header(kMagic.begin(), kMagic.end());
    appendNumber(header, kMajorVersion);
    appendNumber(header, kMinorVersion);
    appendNumber(header, checksum(0, header.data(), header.size()));
    m_file.write(header.data(), header.size());
    m_size = header.size();
}

void CaptureWriter::start(std::string_view json)
{
    writeFrame(EFrame::Start, json);
}

void CaptureWriter::fromHost(const mp::wstring& message)
{
    writeFrame(EFrame::FromHost, unitsOf(message));
}

void CaptureWriter::fromTranslator(const mp::wstring& message)
{
    writeFrame(EFrame::FromTranslator, unitsOf(message));
}

void CaptureWriter::strayFromHost(std::string_view bytes)
{
    writeFrame(EFrame::StrayFromHost, bytes);
}

void CaptureWriter::strayFromTranslator(std::string_view bytes)
{
    writeFrame(EFrame::StrayFromTranslator, bytes);
}

void CaptureWriter::buffer(const mp::wstring& name, const char* content, std::uint64_t size)
{
    std::string payload;
    appendName(payload, name);
    writeFrame(EFrame::Buffer, payload, content, size);
}

void CaptureWriter::missingBuffer(const mp::wstring& name)
{
    writeFrame(EFrame::MissingBuffer, unitsOf(name));
}

void CaptureWriter::unloadedBuffers(const std::vector<mp::wstring>& names)
{
    std::string payload;
    for (const mp::wstring& name : names)
    {
        appendName(payload, name);
    }
    writeFrame(EFrame::UnloadedBuffers, payload);
}

void CaptureWriter::end(std::string_view json)
{
    writeFrame(EFrame::End, json);
}

// The content stands behind the payload.
void CaptureWriter::writeFrame(EFrame kind, std::string_view payload, const char* content, std::uint64_t size)
{
    const auto time = std::chrono::steady_clock::now() - m_begin;
    const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(time).count();
    std::string head;
    head.reserve(kFrameHeadSize + payload.size() + sizeof(std::uint32_t));
    appendNumber(head, static_cast<std::uint32_t>(kind));
    appendNumber(head, static_cast<std::uint64_t>(microseconds));
    appendNumber(head, payload.size() + size);
    head += payload;
    try
    {
        writeWhole(std::move(head), content, size);
    }
    catch (const std::system_error&)
    {
        m_file.cutTo(m_size);
        throw;
    }
}

// What is small goes out in one write, so that a recorder that is killed seldom leaves half a frame.
void CaptureWriter::writeWhole(std::string head, const char* content, std::uint64_t size)
{
    const std::uint64_t whole = head.size() + size + sizeof(std::uint32_t);
    std::uint32_t sum = checksum(0, head.data(), head.size());
    if (size > 0)
    {
        m_file.write(head.data(), head.size());
        head.clear();
    }
    for (std::uint64_t done = 0; done < size; done += kPiece)
    {
        const auto count = static_cast<std::size_t>(std::min(size - done, kPiece));
        sum = checksum(sum, content + done, count);
        m_file.write(content + done, count);
    }
    appendNumber(head, sum);
    m_file.write(head.data(), head.size());
    m_size += whole;
}

} // namespace capture
