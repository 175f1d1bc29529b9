#include "bridge/bridge.h"
#include "mp/narrow.h"
#include "peer.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <iostream>
#include <stdexcept>
#include <thread>

using namespace vrx;

namespace
{

void dawdleIf(bool dawdles)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(dawdles ? 200 : 0));
}

class Told : public bridge::Listener
{
public:
    Told(bridge::HostSession& session, std::string manner)
        : m_session(session)
        , m_manner(std::move(manner))
    {
    }

    void onProgress(const ExcProgress& progress) override { std::cout << "progress " << progress.progress() << '\n'; }
    void onMessage(const mp::wstring& text) override { std::cout << "message " << mp::toNarrow(text) << '\n'; }
    void onLog(const mp::wstring& text) override { std::cout << "log " << mp::toNarrow(text) << '\n'; }
    void onStage(ExcStageFinished::EStage stage) override { std::cout << "stage " << static_cast<int>(stage) << '\n'; }

    void onObject(const std::shared_ptr<IExchangeObject>& object) override
    {
        m_objects.push_back(object);
        if (m_manner == "cancels")
        {
            m_session.cancel();
        }
        if (m_manner == "throws")
        {
            throw std::runtime_error("the listener has enough");
        }
        dawdleIf(m_manner == "dawdles");
        if (m_manner == "dies")
        {
            std::cout << "dies" << std::endl;
            killSelf();
        }
        tell(*object);
    }

    bool wants(const IExchangeObject& object) override
    {
        return m_manner != "picks" || object.objectName() != ExcProductStructure::objName();
    }

    void loadFirst()
    {
        m_objects.at(0)->load();
        tell(*m_objects.at(0));
    }

private:
    static void tell(const IExchangeObject& object)
    {
        std::cout << mp::toNarrow(object.objectName()) << (object.isLoaded() ? "" : " unloaded");
        if (const auto* const structure = dynamic_cast<const ExcProductStructure*>(&object))
        {
            std::cout << ' ' << mp::toNarrow(structure->productName());
        }
        std::cout << '\n';
    }

    bridge::HostSession& m_session;
    std::string m_manner;
    std::vector<std::shared_ptr<IExchangeObject>> m_objects;
};

Result import(bridge::HostSession& session, Told& told)
{
    const auto options = Command::newImportOptions();
    options->setFile(WIDE("a.step"));
    return session.importFile(options, told);
}

// One that dies has told of both.
Result exportTwo(bridge::HostSession& session, Told& told, const std::string& manner)
{
    const auto options = Command::newExportOptions();
    options->setFile(WIDE("a.step"));
    int count = 0;
    return session.exportFile(
        options,
        [&count, &manner]() -> std::shared_ptr<IExchangeObject> {
            if (++count > 2)
            {
                if (manner == "exports-and-dies")
                {
                    std::cout << "dies" << std::endl;
                    killSelf();
                }
                return nullptr;
            }
            dawdleIf(count > 1 && manner == "exports-slowly");
            const auto structure = std::make_shared<ExcProductStructure>();
            structure->setProductName(count == 1 ? WIDE("one") : WIDE("two"));
            return structure;
        },
        told);
}

void talk(bridge::HostSession& session, const std::string& manner)
{
    if (manner == "hurries")
    {
        session.setTimeLimit(std::chrono::milliseconds(500));
    }
    if (manner == "limits")
    {
        session.setReadRules(ReadRules::upToPlainBytes(10));
    }
    else if (manner == "loads")
    {
        session.setReadRules(ReadRules::forUntrusted());
    }
    session.setLazy(manner == "is-lazy");
    std::cout << mp::toNarrow(session.info().name()) << '\n';

    Told told(session, manner);
    const bool isExport = manner.rfind("exports", 0) == 0;
    const Result result = isExport ? exportTwo(session, told, manner) : import(session, told);
    std::cout << "result " << static_cast<int>(result.code()) << '\n';
    if (manner == "is-lazy")
    {
        told.loadFirst();
    }
    dawdleIf(manner == "dawdles");
    std::cout << "ping " << static_cast<int>(session.ping().code()) << '\n';
}

} // namespace

int playHost(const std::string& manner, const std::vector<std::string>& translator)
{
    bridge::keepInheritedJournals(); // the test counts what is left
    std::vector<std::string> command = {VRX_BRIDGE_TEST_PEER, "translator"};
    command.insert(command.end(), translator.begin(), translator.end());
    bridge::HostSession session(command);
    try
    {
        talk(session, manner);
    }
    catch (const bridge::TranslatorFailure& failure)
    {
        std::cout << "failure " << static_cast<int>(failure.kind()) << ' ' << failure.what() << '\n';
    }
    return 0;
}
