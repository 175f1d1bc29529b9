#include "fuzz/support.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/vrx_api_exchange_common.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"

// The first byte chooses the class, the others are the binary form of its tree.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const vrx::wstring names[] = {
        vrx::ExcProductStructure::objName(), vrx::ExcProgress::objName(),
        vrx::ExcMessage::objName(),          vrx::ExcLog::objName(),
        vrx::ExcStageFinished::objName(),
    };
    if (size == 0 || data[0] >= std::size(names))
    {
        return -1;
    }
    const std::string form(data + 1, data + size);
    const auto object = vrx::ExchangeObjectRegistry::instance().get(names[data[0]]);
    fuzz::crossBinary(*object, form.data(), form.size());
    return 0;
}
