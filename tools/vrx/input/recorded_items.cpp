#include "input/recorded_items.h"

#include "arguments.h"
#include "capture/capture_bytes.h"
#include "capture/capture_reader.h"
#include "input/content.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace input
{

namespace
{

// Before a damaged place, the names that were found up to there.
std::set<mp::wstring> unloadedBuffers(std::istream& stream)
{
    std::set<mp::wstring> names;
    try
    {
        capture::CaptureReader reader(stream);
        for (capture::Frame frame; reader.next(frame);)
        {
            names.insert(frame.names.begin(), frame.names.end());
        }
    }
    catch (const capture::CaptureError&)
    {
        // The second reading gives what there is, and then tells of it.
        return names;
    }
    return names;
}

class Items
{
public:
    Items(std::set<mp::wstring> unloaded, const std::function<void(Item&)>& take, std::uint64_t limit)
        : m_unloaded(std::move(unloaded))
        , m_take(take)
        , m_limit(limit)
    {
    }

    void takeFrame(capture::Frame& frame)
    {
        switch (frame.kind)
        {
        case capture::EFrame::Start:
            m_recording.start = frame.json;
            break;
        case capture::EFrame::FromHost:
            give(frame, ESender::Host);
            break;
        case capture::EFrame::FromTranslator:
            give(frame, ESender::Translator);
            break;
        case capture::EFrame::Buffer:
            m_buffers[frame.name] = std::move(frame.content);
            break;
        case capture::EFrame::End:
            m_recording.end = frame.json;
            m_recording.isCut = false;
            break;
        default:
            break;
        }
    }

    Recording& recording() { return m_recording; }

private:
    void give(capture::Frame& frame, ESender sender)
    {
        Item item;
        item.number = ++m_count;
        item.sender = sender;
        item.time = frame.time;
        setMessage(item, std::move(frame.message));
        if (!item.head.bufferName.empty())
        {
            takeBuffer(item);
        }
        m_take(item);
    }

    void takeBuffer(Item& item)
    {
        item.wasUnloaded = m_unloaded.count(item.head.bufferName) != 0;
        auto recorded = m_buffers.extract(item.head.bufferName);
        if (recorded.empty())
        {
            item.buffer = EBuffer::Missing;
            return;
        }
        try
        {
            setBuffer(item, std::move(recorded.mapped()), m_limit);
        }
        catch (const tool::InputError& error)
        {
            item.buffer = EBuffer::Damaged;
            item.damage = error.what();
        }
    }

    Recording m_recording{true, true, {}, {}}; // Cut, until its last frame has come.
    std::set<mp::wstring> m_unloaded;
    std::map<mp::wstring, std::vector<char>> m_buffers; // Those whose message is still to come.
    std::size_t m_count = 0;
    const std::function<void(Item&)>& m_take;
    std::uint64_t m_limit;
};

} // namespace

bool isCapture(const char* bytes, std::size_t size)
{
    return size >= capture::kMagic.size() && std::equal(capture::kMagic.begin(), capture::kMagic.end(), bytes);
}

Recording readCapture(const std::function<std::unique_ptr<std::istream>()>& open,
                      const std::function<void(Item&)>& take, std::uint64_t limit)
{
    Items items(unloadedBuffers(*open()), take, limit);
    try
    {
        const auto stream = open();
        capture::CaptureReader reader(*stream);
        for (capture::Frame frame; reader.next(frame);)
        {
            items.takeFrame(frame);
        }
        items.recording().isCut = items.recording().isCut || reader.isCut();
    }
    catch (const capture::CaptureError& error)
    {
        throw tool::InputError(error.what());
    }
    return items.recording();
}

} // namespace input
