#include "checking/import_checker.h"

#include "classes/class_named.h"
#include "json/member.h"
#include "json/utf.h"
#include "mp/narrow.h"
#include "printing/escaped.h"
#include "printing/scalar_text.h"
#include "vrx_api/command/command.h"
#include "vrx_api/command/result.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
#include "vrx_api/info/ferrant_info.h"

#include <stdexcept>
#include <typeinfo>

namespace checking
{

namespace
{

// What can be read of a message; its defects are told elsewhere.
template <class Message>
Message readMessage(const mp::wstring& text)
{
    Message message;
    mp::wistringstream stream(text);
    try
    {
        message.readObject(stream);
    }
    catch (const std::invalid_argument&)
    {
        return message;
    }
    return message;
}

// It may hold a name that came from outside.
std::string damageOf(const input::Item& item)
{
    return printing::escaped(mp::toWide(item.damage));
}

} // namespace

ImportChecker::ImportChecker(const KnownKeys& known, Findings& findings)
    : m_known(known)
    , m_findings(findings)
    , m_ids(findings)
    , m_trees(known, findings, m_ids)
{
}

void ImportChecker::take(const input::Item& item, const vrx::ClassShape* alone)
{
    if (item.text.empty() && alone != nullptr && item.object() != nullptr)
    {
        m_trees.check(*item.object(), *alone, item.number);
    }
    else
    {
        takeMessage(item);
    }
    m_ids.endObject();
    m_findings.endMessage(item.number);
}

void ImportChecker::takeMessage(const input::Item& item)
{
    switch (item.head.kind)
    {
    case vrx::EMessageKind::Command:
        takeCommand(item);
        break;
    case vrx::EMessageKind::Result:
        takeResult(item);
        break;
    case vrx::EMessageKind::Info:
        checkMessage<vrx::FerrantInfo>(item);
        m_unanswered.clear();
        break;
    case vrx::EMessageKind::Envelope:
        takeEnvelope(item);
        break;
    default:
        takeOther(item);
        break;
    }
}

void ImportChecker::takeOther(const input::Item& item)
{
    // The bodies of a block are not looked into.
    const bool isBodies = item.buffer == input::EBuffer::Present && !item.form;
    if (!isBodies)
    {
        add(ECode::NotAMessage, item.number,
            item.damage.empty() ? "this is neither a command nor an answer nor an exchange object" : damageOf(item));
    }
}

void ImportChecker::takeCommand(const input::Item& item)
{
    const vrx::Command::EType type = readMessage<vrx::Command>(item.text).type();
    // Each import and each export has ids of its own.
    if (type == vrx::Command::EType::Import || type == vrx::Command::EType::Export)
    {
        m_ids.endImport(m_unanswered.empty() && !m_failed);
        m_failed = false;
        m_isTranslating = true;
        if (json::member(item.message, WIDE("options")) == nullptr)
        {
            add(ECode::MissingKey, item.number, "the key \"options\" is missing, which a reader wants");
        }
    }
    else if (m_unanswered.empty())
    {
        m_isTranslating = false;
    }
    if (item.sender == input::ESender::Host)
    {
        m_unanswered.push_back(item.number);
    }
    checkMessage<vrx::Command>(item);
}

void ImportChecker::takeResult(const input::Item& item)
{
    const vrx::Result::ECode code = readMessage<vrx::Result>(item.text).code();
    const bool isFailure = code == vrx::Result::ECode::Error || code == vrx::Result::ECode::Interrupted;
    m_failed = m_failed || (isFailure && m_isTranslating);
    m_unanswered.clear();
    checkMessage<vrx::Result>(item);
}

template <class Message>
void ImportChecker::checkMessage(const input::Item& item)
{
    m_trees.check(item.message, *vrx::ClassShape::find(typeid(Message)), item.number);
}

void ImportChecker::takeEnvelope(const input::Item& item)
{
    checkMessage<vrx::ExchangeObjectWrapper>(item);
    checkBufferName(item);
    checkBuffer(item);
    const vrx::ClassShape* const shape = classes::ofObject(item.head.objectName);
    if (shape == nullptr)
    {
        if (!m_known.hasObject(json::toUtf8(item.head.objectName)))
        {
            add(ECode::UnknownObject, item.number,
                "there is no exchange object " + printing::quoted(item.head.objectName));
        }
        return;
    }
    if (item.object() != nullptr)
    {
        m_trees.check(*item.object(), *shape, item.number);
    }
}

void ImportChecker::checkBufferName(const input::Item& item)
{
    const vrx::JsonValue* const binary = json::member(item.message, WIDE("binary"));
    const vrx::JsonValue* const name = json::member(item.message, WIDE("exchange_object_data"));
    if (binary != nullptr && binary->IsTrue() && name != nullptr && (!name->IsString() || name->GetStringLength() == 0))
    {
        m_findings.add(ECode::WrongKind, [&] {
            return std::pair(Place{item.number, WIDE("/exchange_object_data")},
                             printing::briefText(*name) + " stands where the name of a buffer is read");
        });
    }
}

void ImportChecker::checkBuffer(const input::Item& item)
{
    const std::string buffer = "the buffer " + printing::quoted(item.head.bufferName);
    if (item.wasUnloaded)
    {
        add(ECode::UnloadedBuffer, item.number, buffer + " was not loaded by anybody when the recording ended");
    }
    if (item.buffer == input::EBuffer::Missing)
    {
        add(ECode::MissingBuffer, item.number, buffer + " is not there");
    }
    if (item.buffer == input::EBuffer::Damaged)
    {
        add(ECode::DamagedBuffer, item.number, buffer + " can't be read: " + damageOf(item));
    }
}

void ImportChecker::end(const input::Recording& recording)
{
    if (recording.isCapture && !recording.isCut)
    {
        for (const std::size_t number : m_unanswered)
        {
            add(ECode::NoAnswer, number, "the command was not answered");
        }
    }
    m_ids.endImport(!recording.isCut && m_unanswered.empty() && !m_failed);
    m_findings.endMessage(0);
}

void ImportChecker::add(ECode code, std::size_t message, const std::string& sentence)
{
    m_findings.add(code, [&] { return std::pair(Place{message, {}}, sentence); });
}

} // namespace checking
