# libdeflate as the imported target vrx_api::libdeflate. Its older releases have no package files for CMake, so it is
# looked for. Nothing of it is in the interface of the installed package.

find_path(VrxLibdeflate_INCLUDE_DIR libdeflate.h)
find_library(VrxLibdeflate_LIBRARY NAMES deflate libdeflate)
mark_as_advanced(VrxLibdeflate_INCLUDE_DIR VrxLibdeflate_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(VrxLibdeflate REQUIRED_VARS VrxLibdeflate_LIBRARY VrxLibdeflate_INCLUDE_DIR)

if(VrxLibdeflate_FOUND AND NOT TARGET vrx_api::libdeflate)
    add_library(vrx_api::libdeflate UNKNOWN IMPORTED)
    set_target_properties(vrx_api::libdeflate PROPERTIES
        IMPORTED_LOCATION ${VrxLibdeflate_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${VrxLibdeflate_INCLUDE_DIR})
endif()
