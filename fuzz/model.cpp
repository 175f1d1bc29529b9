#include "fuzz/support.h"
#include "fuzz/tree_mutator.h"
#include "vrx_api/exchange/exchange_object_registry.h"

const fuzz::InputForm fuzz::kInputForm{false, true};

// The name of an exchange class and a line feed, then the binary form of its tree.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    const std::size_t nameEnd = input.find('\n');
    if (nameEnd == std::string::npos)
    {
        return -1;
    }
    const auto object = vrx::ExchangeObjectRegistry::instance().get(mp::toWide(input.substr(0, nameEnd)));
    if (object == nullptr)
    {
        return -1;
    }
    fuzz::crossBinary(*object, input.data() + nameEnd + 1, size - nameEnd - 1);
    return 0;
}
