# 64-bit Windows by MinGW-w64 with POSIX threads, from a Debian machine.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# C is for GoogleTest, whose project asks for it.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(mingw_root /usr/x86_64-w64-mingw32)
# RapidJSON and Boost are headers only, so those of the machine serve. /usr/include itself must stay out of the way:
# it would bring the C library of the machine. This directory holds nothing else than the two.
set(header_root ${CMAKE_BINARY_DIR}/header-only)

set(CMAKE_FIND_ROOT_PATH ${mingw_root} ${header_root})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

get_property(in_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT in_try_compile)
    file(MAKE_DIRECTORY ${header_root}/include)
    foreach(library rapidjson boost)
        file(CREATE_LINK /usr/include/${library} ${header_root}/include/${library} SYMBOLIC)
    endforeach()
endif()

# Library and programs exchange strings and exceptions, so they share the runtime's DLLs instead of each linking its
# own; under Wine they are found where the compiler has them.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libstdc++-6.dll
    OUTPUT_VARIABLE runtime_dll OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(runtime_folder ${runtime_dll} DIRECTORY)
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/../../scripts/run-under-wine ${CMAKE_BINARY_DIR}/wine ${runtime_folder}:${mingw_root}/lib)
