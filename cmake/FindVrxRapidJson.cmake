# RapidJSON as the imported target vrx_api::rapidjson. Its own package files give a target in some releases and only a
# variable in others, so the headers are looked for. Installed beside the package files: consumers need it too.

find_path(VrxRapidJson_INCLUDE_DIR rapidjson/document.h)
mark_as_advanced(VrxRapidJson_INCLUDE_DIR)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(VrxRapidJson REQUIRED_VARS VrxRapidJson_INCLUDE_DIR)

if(VrxRapidJson_FOUND AND NOT TARGET vrx_api::rapidjson)
    add_library(vrx_api::rapidjson INTERFACE IMPORTED)
    set_target_properties(vrx_api::rapidjson PROPERTIES
        INTERFACE_INCLUDE_DIRECTORIES ${VrxRapidJson_INCLUDE_DIR})
endif()
