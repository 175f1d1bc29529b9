// A translator that kills itself when it has sent an object: cad_translator_dying <name of the exchange object>

#include "bridge/translator_channel.h"
#include "mp/narrow.h"
#include "translator.h"

#include <csignal>
#include <string>
#include <utility>

namespace
{

class DyingChannel : public vrx::bridge::TranslatorChannel
{
public:
    explicit DyingChannel(std::string lastObject)
        : m_lastObject(std::move(lastObject))
    {
    }

    using vrx::bridge::TranslatorChannel::send;
    void send(const std::shared_ptr<vrx::IExchangeObject>& object) override
    {
        vrx::bridge::TranslatorChannel::send(object);
        if (mp::toNarrow(object->objectName()) == m_lastObject)
        {
            std::raise(SIGKILL);
        }
    }

private:
    std::string m_lastObject;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        return 2;
    }
    DyingChannel channel(argv[1]);
    Translator(channel).run();
    return 0;
}
