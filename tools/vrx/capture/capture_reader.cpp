#include "capture/capture_reader.h"

#include "capture/capture_bytes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace capture
{

namespace
{

constexpr std::uint64_t kPiece = 1U << 16U;

// The parts of a payload, one after the other.
class Parts
{
public:
    Parts(const std::vector<char>& payload, std::uint64_t place)
        : m_payload(payload)
        , m_place(place)
    {
    }

    bool isAtEnd() const { return m_done == m_payload.size(); }
    std::size_t done() const { return m_done; }

    mp::wstring name()
    {
        const auto units = numberAt<std::uint32_t>(take(sizeof(std::uint32_t)));
        return text(units);
    }

    mp::wstring text(std::uint64_t units)
    {
        const char* const bytes = take(units * 2);
        mp::wstring taken(static_cast<std::size_t>(units), 0);
        for (std::size_t i = 0; i < taken.size(); ++i)
        {
            taken[i] = static_cast<mp::wchar>(numberAt<std::uint16_t>(bytes + i * 2));
        }
        return taken;
    }

    mp::wstring restAsText()
    {
        const std::uint64_t left = m_payload.size() - m_done;
        if (left % 2 != 0)
        {
            refuse();
        }
        return text(left / 2);
    }

private:
    const char* take(std::uint64_t size)
    {
        if (size > m_payload.size() - m_done)
        {
            refuse();
        }
        const char* const taken = m_payload.data() + m_done;
        m_done += static_cast<std::size_t>(size);
        return taken;
    }

    [[noreturn]] void refuse() const
    {
        throw CaptureError("the capture has a frame of a wrong form at byte " + std::to_string(m_place));
    }

    const std::vector<char>& m_payload;
    std::uint64_t m_place;
    std::size_t m_done = 0;
};

// The payload is taken apart; a large content is moved, not copied.
void decode(std::vector<char>& payload, Frame& frame)
{
    Parts parts(payload, frame.place);
    switch (frame.kind)
    {
    case EFrame::Start:
    case EFrame::End:
        frame.json.assign(payload.begin(), payload.end());
        break;
    case EFrame::FromHost:
    case EFrame::FromTranslator:
        frame.message = parts.restAsText();
        break;
    case EFrame::Buffer:
        frame.name = parts.name();
        payload.erase(payload.begin(), payload.begin() + static_cast<std::ptrdiff_t>(parts.done()));
        frame.content.swap(payload);
        break;
    case EFrame::StrayFromHost:
    case EFrame::StrayFromTranslator:
        frame.content.swap(payload);
        break;
    case EFrame::MissingBuffer:
        frame.name = parts.restAsText();
        break;
    case EFrame::UnloadedBuffers:
        while (!parts.isAtEnd())
        {
            frame.names.push_back(parts.name());
        }
        break;
    }
}

// Zero for a stream that cannot go to its end, such as a pipe.
std::uint64_t sizeOf(std::istream& stream)
{
    stream.seekg(0, std::ios::end);
    const std::streamoff size = stream.tellg();
    stream.clear();
    if (size < 0)
    {
        return 0;
    }
    stream.seekg(0);
    return static_cast<std::uint64_t>(size);
}

bool isKnown(EFrame kind)
{
    return kind >= EFrame::Start && kind <= EFrame::StrayFromTranslator;
}

} // namespace

CaptureReader::CaptureReader(std::istream& stream)
    : m_stream(stream)
    , m_size(sizeOf(stream))
{
    std::array<char, kHeaderSize> header{};
    if (!readBytes(header.data(), header.size()) || !std::equal(kMagic.begin(), kMagic.end(), header.begin()))
    {
        throw CaptureError("this is no capture");
    }
    const std::size_t sumPlace = header.size() - sizeof(std::uint32_t);
    if (checksum(0, header.data(), sumPlace) != numberAt<std::uint32_t>(header.data() + sumPlace))
    {
        throw CaptureError("the capture is damaged in its header");
    }
    const auto version = numberAt<std::uint16_t>(header.data() + kMagic.size());
    if (version != kMajorVersion)
    {
        throw CaptureError("the capture has format version " + std::to_string(version) + "; this program reads " +
                           std::to_string(kMajorVersion));
    }
}

bool CaptureReader::next(Frame& frame)
{
    bool isThere = false;
    do
    {
        isThere = readFrame(frame);
    } while (isThere && !isKnown(frame.kind));
    return isThere;
}

void CaptureReader::goTo(std::uint64_t place)
{
    m_stream.clear();
    m_stream.seekg(static_cast<std::streamoff>(place));
    m_place = place;
    m_isCut = false;
}

bool CaptureReader::readFrame(Frame& frame)
{
    // The memory of the last content is used again.
    m_payload.swap(frame.content);
    frame = Frame();
    frame.place = m_place;

    std::array<char, kFrameHeadSize> head{};
    std::array<char, sizeof(std::uint32_t)> sum{};
    if (m_stream.peek() == std::istream::traits_type::eof())
    {
        return false;
    }
    if (!readBytes(head.data(), head.size()) || !readPayload(numberAt<std::uint64_t>(head.data() + 12)) ||
        !readBytes(sum.data(), sum.size()))
    {
        m_isCut = true;
        return false;
    }
    const std::uint32_t headSum = checksum(0, head.data(), head.size());
    if (checksum(headSum, m_payload.data(), m_payload.size()) != numberAt<std::uint32_t>(sum.data()))
    {
        throw CaptureError("the capture is damaged in the frame at byte " + std::to_string(frame.place));
    }
    frame.kind = static_cast<EFrame>(numberAt<std::uint32_t>(head.data()));
    frame.time = std::chrono::microseconds(
        static_cast<std::chrono::microseconds::rep>(numberAt<std::uint64_t>(head.data() + 4)));
    if (isKnown(frame.kind))
    {
        decode(m_payload, frame);
    }
    return true;
}

// False when the stream ends before.
bool CaptureReader::readBytes(char* bytes, std::size_t size)
{
    m_stream.read(bytes, static_cast<std::streamsize>(size));
    const auto count = static_cast<std::uint64_t>(m_stream.gcount());
    m_place += count;
    if (m_stream.bad())
    {
        throw CaptureError("the capture cannot be read at byte " + std::to_string(m_place));
    }
    return count == size;
}

bool CaptureReader::readPayload(std::uint64_t size)
{
    m_payload.clear();
    if (m_place <= m_size && size <= m_size - m_place)
    {
        m_payload.reserve(static_cast<std::size_t>(size));
    }
    bool isWhole = true;
    while (isWhole && m_payload.size() < size)
    {
        const std::size_t done = m_payload.size();
        const std::uint64_t piece = std::min<std::uint64_t>(size - done, std::max<std::uint64_t>(kPiece, done));
        m_payload.resize(done + static_cast<std::size_t>(piece));
        isWhole = readBytes(m_payload.data() + done, static_cast<std::size_t>(piece));
    }
    return isWhole;
}

} // namespace capture
