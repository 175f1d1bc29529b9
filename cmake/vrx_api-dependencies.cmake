# RapidJSON as vrx_api::rapidjson, and libdeflate, where it is there, as vrx_api::libdeflate. Their packages differ in what
# they call them, and some bring no target, or nothing for CMake at all. Read by the build and by the installed package,
# which look whether RapidJSON was found: vrx_api_rapidjson_folder is set, to NOTFOUND, where it was not.

if(NOT TARGET vrx_api::rapidjson)
    find_package(RapidJSON CONFIG QUIET)
    add_library(vrx_api::rapidjson INTERFACE IMPORTED)
    if(TARGET rapidjson)
        target_link_libraries(vrx_api::rapidjson INTERFACE rapidjson)
    elseif(TARGET RapidJSON)
        target_link_libraries(vrx_api::rapidjson INTERFACE RapidJSON)
    else()
        find_path(vrx_api_rapidjson_folder rapidjson/document.h HINTS ${RAPIDJSON_INCLUDE_DIRS})
        mark_as_advanced(vrx_api_rapidjson_folder)
        target_include_directories(vrx_api::rapidjson INTERFACE ${vrx_api_rapidjson_folder})
    endif()
endif()

if(vrx_api_wants_libdeflate AND NOT TARGET vrx_api::libdeflate)
    find_package(libdeflate CONFIG QUIET)
    find_library(vrx_api_libdeflate_library NAMES deflate libdeflate)
    find_path(vrx_api_libdeflate_folder libdeflate.h)
    mark_as_advanced(vrx_api_libdeflate_library vrx_api_libdeflate_folder)
    if(TARGET libdeflate::libdeflate_shared)
        set(vrx_api_libdeflate_target libdeflate::libdeflate_shared)
    elseif(TARGET libdeflate::libdeflate_static)
        set(vrx_api_libdeflate_target libdeflate::libdeflate_static)
    endif()
    if(vrx_api_libdeflate_target)
        add_library(vrx_api::libdeflate INTERFACE IMPORTED)
        target_link_libraries(vrx_api::libdeflate INTERFACE ${vrx_api_libdeflate_target})
    elseif(vrx_api_libdeflate_library AND vrx_api_libdeflate_folder)
        add_library(vrx_api::libdeflate UNKNOWN IMPORTED)
        set_target_properties(vrx_api::libdeflate PROPERTIES
            IMPORTED_LOCATION ${vrx_api_libdeflate_library}
            INTERFACE_INCLUDE_DIRECTORIES ${vrx_api_libdeflate_folder})
    endif()
endif()
