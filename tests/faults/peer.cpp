// A translator that joins the plan of faults. An exception without a text ends it as one that nobody catches.

#include "bridge/bridge.h"
#include "tests/faults/fault_plan.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <cstdlib>
#include <exception>
#include <stdexcept>

using namespace vrx;

namespace
{

void import(bridge::TranslatorChannel& channel)
{
    const auto structure = std::make_shared<ExcProductStructure>();
    structure->setProductName(WIDE("imported"));
    channel.message(WIDE("reads"));
    channel.send(structure);
    channel.send(Result());
}

void receive(bridge::TranslatorChannel& channel)
{
    while (const auto object = channel.receiveObject())
    {
        const auto product = std::dynamic_pointer_cast<ExcProductStructure>(object);
        if (!object->isLoaded())
        {
            throw std::runtime_error("bodies are not loaded");
        }
        channel.message(product == nullptr ? object->objectName() : product->productName());
    }
    channel.send(Result());
}

void translate()
{
    bridge::TranslatorChannel channel;
    while (const std::optional<Command> command = channel.receive())
    {
        switch (command->type())
        {
        case Command::EType::Info:
            channel.send(FerrantInfo());
            break;
        case Command::EType::Import:
            import(channel);
            break;
        case Command::EType::Export:
            receive(channel);
            break;
        default:
            channel.send(Result());
        }
    }
}

} // namespace

int main()
{
    faults::FaultPlan::join();
    int code = 0;
    try
    {
        translate();
    }
    catch (const std::exception& failure)
    {
        if (*failure.what() == '\0')
        {
            std::abort();
        }
        code = 1; // that of an abort on Windows is 3
    }
#ifdef _WIN32
    faults::FaultPlan::leave(); // Boost.Interprocess needs memory when a process ends.
#endif
    return code;
}
