# What every target of this build shares: language, output folders, compiler cache, platform macros, sanitizers.

if(PROJECT_IS_TOP_LEVEL)
    get_property(is_multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
    if(NOT is_multi_config AND NOT CMAKE_BUILD_TYPE)
        set(CMAKE_BUILD_TYPE Release CACHE STRING "How it is compiled" FORCE)
    endif()
    if(NOT CMAKE_CXX_STANDARD)
        set(CMAKE_CXX_STANDARD 17)
    endif()
    set(CMAKE_CXX_STANDARD_REQUIRED ON)
    set(CMAKE_CXX_EXTENSIONS OFF)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

    # One folder for programs and libraries: on Windows a program finds its DLLs beside itself.
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

    find_program(VRX_API_CCACHE ccache)
    mark_as_advanced(VRX_API_CCACHE)
    if(VRX_API_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${VRX_API_CCACHE})
    endif()
endif()

if(WIN32)
    add_compile_definitions(NOMINMAX WIN32_LEAN_AND_MEAN)
endif()

# Sanitizers go into every target, GoogleTest included: a container that crosses from an instrumented to a plain
# object file gives false alarms.
if(VRX_API_SANITIZE)
    add_compile_options(-fsanitize=${VRX_API_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VRX_API_SANITIZE})
endif()
# The fuzzer is not told of comparisons: that costs a third of the time, and the words to compare with are in the seeds
# and in what the classes tell.
if(VRX_API_BUILD_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp,stack-depth
        -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/ignored.txt)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()
