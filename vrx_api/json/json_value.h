#pragma once

#include "vrx_api/json/json_fwd.h"

#ifndef RAPIDJSON_HAS_STDSTRING
#define RAPIDJSON_HAS_STDSTRING 0
#endif

#ifdef VRX_API_OWN_SOURCES
#include <cstddef>
#include <cstdlib>
#include <new>

// RapidJSON calls std::malloc and std::realloc, and writes to what they give even when there is no memory. In the
// sources of this library it finds these, which throw. Programs keep theirs: a using-directive for RapidJSON would make
// their own `std` ambiguous.
namespace rapidjson::std
{

using namespace ::std;

inline void* allocated(void* memory)
{
    if (memory == nullptr)
    {
        throw bad_alloc();
    }
    return memory;
}

inline void* malloc(size_t size)
{
    return allocated(::std::malloc(size));
}

inline void* realloc(void* memory, size_t size)
{
    return allocated(::std::realloc(memory, size));
}

} // namespace rapidjson::std
#endif

#include <rapidjson/document.h>
