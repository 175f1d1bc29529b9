#include "replay/recorded_exchanges.h"

#include "vrx_api/exchange/peek_envelope.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

#include <algorithm>
#include <iterator>

namespace replay
{

namespace
{

using capture::EFrame;
using vrx::EMessageKind;

// What a translator may say to a message that it does not know.
bool isError(const mp::wstring& message)
{
    mp::wstringstream stream(message);
    vrx::JsonDocument document;
    vrx::JsonTextIO::read(stream, document);
    if (!document.IsObject())
    {
        return false;
    }
    const auto code = document.FindMember(WIDE("code"));
    return code != document.MemberEnd() && code->value.IsString() &&
           mp::wstring(code->value.GetString()) == WIDE("error");
}

// Finds the commands and gives the answers to them: a translator answers one command after the other.
class Exchanges
{
public:
    explicit Exchanges(std::vector<Exchange>& exchanges)
        : m_exchanges(exchanges)
    {
    }

    void add(const capture::Frame& frame)
    {
        switch (frame.kind)
        {
        case EFrame::Buffer:
        case EFrame::MissingBuffer:
            m_buffers.push_back(frame.place);
            break;
        case EFrame::FromHost:
            addFromHost(frame);
            m_buffers.clear();
            break;
        case EFrame::FromTranslator:
            m_buffers.push_back(frame.place);
            addAnswer(frame.message);
            m_buffers.clear();
            break;
        case EFrame::Start:
        case EFrame::UnloadedBuffers:
        case EFrame::End:
        case EFrame::StrayFromHost:
        case EFrame::StrayFromTranslator:
            break;
        }
    }

private:
    void addFromHost(const capture::Frame& frame)
    {
        const EMessageKind kind = vrx::peekEnvelope(frame.message).kind;
        if (kind == EMessageKind::Command || kind == EMessageKind::Unknown)
        {
            m_exchanges.push_back(
                {commandIn(frame.message), frame.time, {}, false, false, kind == EMessageKind::Unknown});
        }
        else if (kind == EMessageKind::Result && !m_exchanges.empty())
        {
            m_exchanges.back().hasObjects = true;
        }
    }

    void addAnswer(const mp::wstring& message)
    {
        const EMessageKind kind = vrx::peekEnvelope(message).kind;
        while (m_current + 1 < m_exchanges.size() && m_exchanges[m_current].isUnknown && !isError(message))
        {
            ++m_current;
        }
        if (m_current == m_exchanges.size())
        {
            return; // Nobody asked.
        }
        Exchange& exchange = m_exchanges[m_current];
        exchange.places.insert(exchange.places.end(), m_buffers.begin(), m_buffers.end());
        if (kind == EMessageKind::Result || kind == EMessageKind::Info)
        {
            exchange.isAnswered = true;
            ++m_current;
        }
    }

    std::vector<Exchange>& m_exchanges;
    std::size_t m_current = 0;
    std::vector<std::uint64_t> m_buffers; // and the message that names them
};

} // namespace

mp::wstring commandIn(const mp::wstring& message)
{
    mp::wstringstream stream(message);
    vrx::JsonDocument document;
    vrx::JsonTextIO::read(stream, document);
    if (!document.IsObject())
    {
        return {};
    }
    const auto command = document.FindMember(WIDE("command"));
    return command != document.MemberEnd() && command->value.IsString() ? command->value.GetString() : mp::wstring();
}

RecordedExchanges::RecordedExchanges(capture::CaptureReader& reader)
{
    Exchanges exchanges(m_exchanges);
    for (capture::Frame frame; reader.next(frame);)
    {
        exchanges.add(frame);
    }
}

const Exchange* RecordedExchanges::next(const mp::wstring& command)
{
    const auto isOfCommand = [&command](const Exchange& exchange) { return exchange.command == command; };
    const auto last = m_last.find(command);
    const std::size_t begin = last == m_last.end() ? 0 : last->second + 1;
    const auto found =
        std::find_if(m_exchanges.begin() + static_cast<std::ptrdiff_t>(begin), m_exchanges.end(), isOfCommand);
    if (found != m_exchanges.end())
    {
        m_last[command] = static_cast<std::size_t>(std::distance(m_exchanges.begin(), found));
        return &*found;
    }
    return last == m_last.end() ? nullptr : &m_exchanges[last->second];
}

} // namespace replay
