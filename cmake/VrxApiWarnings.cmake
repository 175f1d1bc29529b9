# The warnings of all our code, in one interface target. Each of our targets links it privately, behind BUILD_INTERFACE
# where the target is exported.

add_library(vrx_api_warnings INTERFACE)

if(MSVC)
    target_compile_options(vrx_api_warnings INTERFACE
        /W4 /permissive- /utf-8 /Zc:__cplusplus
        # Members of standard types in exported classes: host and translator are built with one runtime.
        /wd4251 /wd4275)
else()
    target_compile_options(vrx_api_warnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Wold-style-cast
        -Woverloaded-virtual -Wcast-qual)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        target_compile_options(vrx_api_warnings INTERFACE
            -Wreserved-identifier -Wreserved-macro-identifier -Wzero-as-null-pointer-constant)
    endif()
endif()

# With the sanitizers' checks between its loads and stores, GCC 12 takes members inside std::regex for uninitialised.
if(VRX_API_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(vrx_api_warnings INTERFACE -Wno-maybe-uninitialized)
endif()

if(VRX_API_WARNINGS_AS_ERRORS)
    target_compile_options(vrx_api_warnings INTERFACE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX,-Werror>)
endif()
