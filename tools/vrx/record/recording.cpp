#include "record/recording.h"

#include "buffers/buffers.h"
#include "mp/exception.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "printing/escaped.h"
#include "vrx_api/json/json_value.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <ctime>
#include <iostream>
#include <system_error>

namespace record
{

namespace
{

#ifdef _WIN32
constexpr const char* kSystem = "Windows";
#else
constexpr const char* kSystem = "Linux";
#endif

// Wide text in, a JSON object in UTF-8 out.
class ObjectText
{
public:
    ObjectText() { m_writer.StartObject(); }

    rapidjson::Writer<rapidjson::StringBuffer, vrx::JsonEncoding>& under(const char* key)
    {
        add(key);
        return m_writer;
    }

    void add(const std::string& text) { m_writer.String(mp::toWide(text).c_str()); }

    std::string finished()
    {
        m_writer.EndObject();
        return m_buffer.GetString();
    }

private:
    rapidjson::StringBuffer m_buffer;
    rapidjson::Writer<rapidjson::StringBuffer, vrx::JsonEncoding> m_writer{m_buffer};
};

std::string now()
{
    const std::time_t time = std::time(nullptr);
    char text[sizeof("2026-11-22T14:03:05Z")] = "";
    std::strftime(text, sizeof(text), "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&time));
    return text;
}

const char* nameOf(vrx::EMessageKind kind)
{
    switch (kind)
    {
    case vrx::EMessageKind::Command:
        return "command";
    case vrx::EMessageKind::Result:
        return "result";
    case vrx::EMessageKind::Info:
        return "description";
    case vrx::EMessageKind::Envelope:
        return "object";
    case vrx::EMessageKind::Unknown:
        break;
    }
    return "unknown message";
}

} // namespace

Recording::Recording(const std::filesystem::path& path, bool overwrite, bool isVerbose)
    : m_isVerbose(isVerbose)
{
    m_writer.emplace(path, overwrite);
}

void Recording::start(const std::vector<std::string>& command)
{
    ObjectText object;
    object.under("recorder");
    object.add("vrx " VRX_VERSION);
    object.under("system");
    object.add(kSystem);
    object.under("started");
    object.add(now());
    auto& words = object.under("command");
    words.StartArray();
    for (const std::string& word : command)
    {
        object.add(word);
    }
    words.EndArray();
    write([&](capture::CaptureWriter& writer) { writer.start(object.finished()); });
}

void Recording::fromHost(const mp::wstring& message)
{
    const vrx::MessageHead head = vrx::peekEnvelope(message);
    const std::lock_guard lock(m_mutex);
    keepBuffer(head.bufferName);
    m_unanswered += head.kind == vrx::EMessageKind::Command ? 1 : 0;
    write([&](capture::CaptureWriter& writer) { writer.fromHost(message); });
    print("host: ", head, message.size());
}

void Recording::fromTranslator(const mp::wstring& message)
{
    const vrx::MessageHead head = vrx::peekEnvelope(message);
    const std::lock_guard lock(m_mutex);
    keepBuffer(head.bufferName);
    m_unanswered -= head.kind == vrx::EMessageKind::Result || head.kind == vrx::EMessageKind::Info ? 1 : 0;
    write([&](capture::CaptureWriter& writer) { writer.fromTranslator(message); });
    print("translator: ", head, message.size());
}

void Recording::strayFromHost(std::string_view bytes)
{
    const std::lock_guard lock(m_mutex);
    write([&](capture::CaptureWriter& writer) { writer.strayFromHost(bytes); });
}

void Recording::strayFromTranslator(std::string_view bytes)
{
    const std::lock_guard lock(m_mutex);
    write([&](capture::CaptureWriter& writer) { writer.strayFromTranslator(bytes); });
}

void Recording::end(const std::set<mp::wstring>& unloaded, std::optional<int> exitCode, const std::string& howItEnded)
{
    ObjectText object;
    if (exitCode)
    {
        object.under("exit_code").Int(*exitCode);
    }
    object.under("text");
    object.add(howItEnded);
    const std::lock_guard lock(m_mutex);
    write([&](capture::CaptureWriter& writer) {
        writer.unloadedBuffers({unloaded.begin(), unloaded.end()});
        writer.end(object.finished());
    });
}

std::set<mp::wstring> Recording::told() const
{
    const std::lock_guard lock(m_mutex);
    return m_told;
}

bool Recording::isAnswered() const
{
    const std::lock_guard lock(m_mutex);
    return m_unanswered <= 0;
}

// What cannot be opened is missing for its reader, too. Under a name of another form stands what is none of ours, which
// is neither copied nor removed. The buffer lies in memory that others can cut while it is copied, which kills us: a
// translator or host that does so is hostile.
void Recording::keepBuffer(const mp::wstring& name)
{
    if (name.empty())
    {
        return;
    }
    if (!buffers::isBufferName(mp::toNarrow(name)))
    {
        write([&](capture::CaptureWriter& writer) { writer.missingBuffer(name); });
        return;
    }
    m_told.insert(name);
    mp::SharedBuffer<char> buffer;
    mp::SharedCopy content;
    bool isThere = false;
    try
    {
        isThere = buffer.openExisting(name);
        content = isThere ? buffer.copy() : mp::SharedCopy();
    }
    catch (const std::exception& failure)
    {
        std::cerr << "vrx record: a buffer cannot be read: " << failure.what() << '\n';
        isThere = false;
    }
    write([&](capture::CaptureWriter& writer) {
        isThere ? writer.buffer(name, content.data(), content.size()) : writer.missingBuffer(name);
    });
}

template <class Operation>
void Recording::write(const Operation& operation)
{
    try
    {
        if (m_writer)
        {
            operation(*m_writer);
        }
    }
    catch (const std::system_error& failure)
    {
        m_writer.reset();
        std::cerr << "vrx record: the recording ends here, the session goes on: " << failure.what() << '\n';
    }
}

void Recording::print(const char* sender, const vrx::MessageHead& head, std::size_t units) const
{
    if (m_isVerbose)
    {
        std::cerr << sender << nameOf(head.kind) << ' ' << printing::escaped(head.objectName) << ", " << units
                  << " units" << (head.bufferName.empty() ? "" : ", buffer ") << printing::escaped(head.bufferName)
                  << '\n';
    }
}

} // namespace record
