#include "fuzz/support.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

// The binary form of a block's scene, which holds all that the scene of a root does.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string form(data, data + size);
    fuzz::crossBinary(vrx::ExcBlockVisualization(), form.data(), form.size());
    return 0;
}
