#include "fuzz/support.h"
#include "vrx_api/vrx_api_ferrant_info.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::crossText<vrx::FerrantInfo>(data, size);
    return 0;
}
