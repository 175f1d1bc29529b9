#include <kernel_standin/kernel_standin.h>
#include <vrx_api/vrx_api_exchange_mechanical.h>

#include <bridge/bridge.h>

#include <iostream>

namespace
{

const std::vector<char> kPayload{'b', 'o', 'l', 't'};

void translate()
{
    vrx::bridge::TranslatorChannel channel;
    while (channel.receive())
    {
        OwnedEntities bodies;
        auto* const body = new BODY;
        body->setPayload(kPayload);
        body->addPart(new LUMP);
        bodies.list().add(body);
        const auto geometry = std::make_shared<vrx::ExcBlockGeometry>();
        if (geometry->setGeometry(bodies.list(), true))
        {
            channel.send(geometry);
        }
        channel.send(vrx::Result());
    }
}

class BodyCounter : public vrx::bridge::Listener
{
public:
    int count() const { return m_count; }

private:
    void onObject(const std::shared_ptr<vrx::IExchangeObject>& object) override
    {
        OwnedEntities bodies;
        std::vector<std::uint64_t> ids;
        const auto geometry = std::dynamic_pointer_cast<vrx::ExcBlockGeometry>(object);
        if (geometry == nullptr || !geometry->getGeometry(bodies.list(), ids))
        {
            return;
        }
        for (int i = 0; i < bodies.list().count(); ++i)
        {
            const auto* const body = dynamic_cast<const BODY*>(bodies.list()[i]);
            m_count += body != nullptr && body->payload() == kPayload && body->parts().size() == 1 ? 1 : 0;
        }
    }

    int m_count = 0;
};

} // namespace

// A program that uses the installed bridge and the kernel's stand-in: without arguments a host, which starts itself as
// its translator and gets a body from it.
int main(int count, char** words)
{
    if (count > 1)
    {
        translate();
        return 0;
    }
    vrx::bridge::HostSession session({words[0], "translator"});
    BodyCounter counter;
    if (session.importFile(vrx::Command::newImportOptions(), counter).code() != vrx::Result::ECode::Ok ||
        counter.count() != 1)
    {
        std::cerr << "the body did not come as it was sent\n";
        return 1;
    }
    std::cout << "the body came\n";
    return 0;
}
