#include "fuzz/support.h"
#include "fuzz/tree_mutator.h"
#include "vrx_api/vrx_api_command.h"

const fuzz::InputForm fuzz::kInputForm{true, false};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::crossText<vrx::Command>(data, size);
    return 0;
}
