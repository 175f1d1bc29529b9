#include "bridge/bridge.h"
#include "mp/narrow.h"
#include "mp/shared_buffer.h"
#include "peer.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <thread>

using namespace vrx;

namespace
{

Result resultOf(Result::ECode code)
{
    Result result;
    result.setCode(code);
    return result;
}

std::shared_ptr<ExcProductStructure> structure(const std::string& name)
{
    auto structure = std::make_shared<ExcProductStructure>();
    structure->setProductName(mp::toWide(name));
    return structure;
}

mp::wstring leftBuffer(std::string_view content = "bodies")
{
    mp::wstring name = IExchangeObject::generateUUID();
    mp::SharedBuffer<char> buffer;
    buffer.open(name, false);
    buffer.write(content.data(), content.size());
    return name;
}

mp::wstring envelope(const mp::wstring& object, const mp::wstring& buffer)
{
    return WIDE(R"({"exchange_object_name":")") + object + WIDE(R"(","binary":true,"exchange_object_data":")") +
           buffer + WIDE("\"}");
}

class PlayedTranslator
{
public:
    int run(const std::vector<std::string>& steps)
    {
        while (const std::optional<Command> command = m_isLeaving ? std::nullopt : m_channel.receive())
        {
            switch (command->type())
            {
            case Command::EType::Info:
                sendInfo(steps);
                break;
            case Command::EType::Import:
                import(*command, steps);
                break;
            case Command::EType::Export:
                tellLegacy(*command);
                receive(steps);
                break;
            default:
                m_channel.send(Result());
            }
        }
        m_output.close();
        return 0;
    }

private:
    void sendInfo(const std::vector<std::string>& steps)
    {
        if (steps == std::vector<std::string>{"untold", "command"})
        {
            doStep("untold");
            doStep("command");
            return;
        }
        if (steps == std::vector<std::string>{"unable"})
        {
            m_channel.log(WIDE("looked for a licence"));
            Result result = resultOf(Result::ECode::Error);
            result.setMessage(WIDE("no licence"));
            m_channel.send(result);
            return;
        }
        FerrantInfo info;
        info.setName(WIDE("peer"));
        info.setVersion(WIDE("1"));
        m_channel.send(info);
    }

    void tellLegacy(const Command& command)
    {
        if (command.internalInterface() == EFerrantInterface::Legacy)
        {
            m_channel.message(WIDE("by the older interface"));
        }
    }

    void import(const Command& command, const std::vector<std::string>& steps)
    {
        tellLegacy(command);
        try
        {
            for (const std::string& step : steps)
            {
                doStep(step);
            }
        }
        catch (const bridge::Cancelled&)
        {
            m_channel.send(resultOf(Result::ECode::Interrupted));
            return;
        }
        m_channel.send(Result());
        if (m_isLate)
        {
            m_channel.log(WIDE("and that was it"));
        }
    }

    void receive(const std::vector<std::string>& steps)
    {
        while (const auto object = m_channel.receiveObject())
        {
            const auto received = std::dynamic_pointer_cast<ExcProductStructure>(object);
            m_channel.message(received->productName());
            for (const std::string& step : steps)
            {
                doStep(step);
            }
            if (!steps.empty())
            {
                break;
            }
        }
        m_channel.send(resultOf(steps.empty() ? Result::ECode::Ok : Result::ECode::Error));
    }

    void doStep(const std::string& step)
    {
        if (step == "stray")
        {
            std::cout << "a stray line" << std::endl;
            std::printf("another\n");
            std::fflush(stdout);
        }
        else if (step == "garbage")
        {
            sendBytes("a stray line of text");
        }
        else if (step == "progress")
        {
            const auto progress = std::make_shared<ExcProgress>();
            progress->setProgress(3);
            m_channel.send(progress);
            m_channel.send(std::make_shared<ExcStageFinished>(ExcStageFinished::EStage::Mechanical));
            m_channel.log(WIDE("half of it"));
        }
        else if (step == "no-code")
        {
            m_channel.sendText(WIDE(R"({"code":[],"message":"hm"})"));
        }
        else if (step == "cut")
        {
            sendBytes(std::string("\2\0\0\0A\0", 6));
        }
        else if (step == "command")
        {
            m_channel.sendText(WIDE(R"({"command":"ping"})"));
        }
        else if (step == "answer")
        {
            m_channel.send(resultOf(Result::ECode::Error));
        }
        else if (step == "newer")
        {
            m_channel.sendText(envelope(WIDE("exc_newer"), leftBuffer()));
        }
        else if (step == "missing")
        {
            m_channel.sendText(envelope(WIDE("exc_product_structure"), IExchangeObject::generateUUID()));
        }
        else if (step == "bodies")
        {
            m_channel.sendText(WIDE(R"({"exchange_object_name":"exc_block_geometry","exchange_object_data":)"
                                    R"({"block_id":1,"acis_body_ids":[],"shared_acis_buffer_name":")") +
                               leftBuffer() + WIDE("\"}}"));
        }
        else if (step == "twice")
        {
            m_channel.sendText(WIDE(R"({"exchange_object_name":"exc_log","exchange_object_name":"exc_message"})"));
        }
        else if (step == "longer")
        {
            constexpr std::string_view kObjectAndMore("\3\0\0\0\0\0\0\0\0\0\0\0\0", 13);
            m_channel.sendText(envelope(WIDE("exc_product_structure"), leftBuffer(kObjectAndMore)));
        }
        else if (step == "limit")
        {
            ReadRules rules = ReadRules::strict();
            rules.values = 6; // a ping has five, an envelope has seven
            m_channel.setReadRules(rules);
        }
        else if (step == "untold")
        {
            leftBuffer();
        }
        else if (step == "deaf")
        {
#ifndef _WIN32
            std::signal(SIGTERM, SIG_IGN);
#endif
        }
        else if (step == "told")
        {
            std::raise(SIGTERM);
        }
        else if (step == "hang")
        {
            std::this_thread::sleep_for(std::chrono::minutes(1));
        }
        else if (step == "dawdle")
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(300));
        }
        else if (step == "leave")
        {
            m_isLeaving = true;
        }
        else if (step == "late")
        {
            m_isLate = true;
        }
        else if (step == "die")
        {
            killSelf();
        }
        else if (step == "exit")
        {
            std::_Exit(5);
        }
        else
        {
            m_channel.message(mp::toWide("now " + step));
            m_channel.send(structure(step));
        }
    }

    // As they are, and no message.
    void sendBytes(const std::string& bytes) const
    {
        m_output.writeAll(bytes.data(), bytes.size());
    }

    bridge::Stream m_output = bridge::Stream::standardOutput(); // before the channel takes it
    bridge::TranslatorChannel m_channel;
    bool m_isLeaving = false; // behind the answer
    bool m_isLate = false;    // with a line of its log
};

} // namespace

int playTranslator(const std::vector<std::string>& steps)
{
    return PlayedTranslator().run(steps);
}
