# What the libraries of this project have in common: how they are built, and how they are installed.
include(CMakePackageConfigHelpers)
include(GenerateExportHeader)
include(GNUInstallDirs)

set(vrx_api_release ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
# A folder of its own for the headers, since `mp` or `bridge` are common names.
set(vrx_api_header_folder ${CMAKE_INSTALL_INCLUDEDIR}/vrx_api-${vrx_api_release})
set(vrx_api_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/vrx_api)
set(vrx_api_pc_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
# From the folder of a .pc file to where the package is installed: the package can be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${vrx_api_pc_folder}
    OUTPUT_VARIABLE VRX_API_PC_TO_PREFIX)

# vrx_api_library(TARGET MACRO HEADER): TARGET is a library, shared or static as BUILD_SHARED_LIBS says. MACRO marks what it
# exports, and stands in the generated HEADER.
macro(vrx_api_library target macro header)
    add_library(${target})
    generate_export_header(${target} EXPORT_MACRO_NAME ${macro} EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/generated/${header}
        STATIC_DEFINE ${macro}_STATIC)
    get_target_property(vrx_api_library_type ${target} TYPE)
    if(vrx_api_library_type STREQUAL STATIC_LIBRARY)
        target_compile_definitions(${target} PUBLIC ${macro}_STATIC)
    endif()
    target_sources(${target} PUBLIC FILE_SET generated_headers TYPE HEADERS
        BASE_DIRS ${PROJECT_BINARY_DIR}/generated FILES ${PROJECT_BINARY_DIR}/generated/${header})
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vrx_api_warnings>)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${vrx_api_release}
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON
        # The libraries find each other side by side, wherever the package is moved to.
        INSTALL_RPATH "$<$<PLATFORM_ID:Linux>:$ORIGIN>"
        # Each public header compiles alone: target ${target}_verify_interface_header_sets
        VERIFY_INTERFACE_HEADER_SETS ${VRX_API_BUILD_TESTS})
endmacro()

# vrx_api_install(TARGET EXPORT COMPONENT DEVELOPMENT): TARGET goes into COMPONENT, and what is needed to build with it into
# DEVELOPMENT; vrx_api-EXPORT.cmake tells CMake of it.
function(vrx_api_install target export component development)
    if(NOT VRX_API_INSTALL)
        return()
    endif()
    install(TARGETS ${target} EXPORT vrx_api-${export}
        RUNTIME COMPONENT ${component}
        LIBRARY COMPONENT ${component} NAMELINK_COMPONENT ${development}
        ARCHIVE COMPONENT ${development}
        FILE_SET HEADERS DESTINATION ${vrx_api_header_folder} COMPONENT ${development}
        FILE_SET generated_headers DESTINATION ${vrx_api_header_folder} COMPONENT ${development})
    install(EXPORT vrx_api-${export} NAMESPACE vrx_api:: FILE vrx_api-${export}.cmake
        DESTINATION ${vrx_api_package_folder} COMPONENT ${development})
endfunction()

# vrx_api_install_pc(NAME COMPONENT): cmake/NAME.pc.in, for pkg-config
function(vrx_api_install_pc name component)
    if(VRX_API_INSTALL)
        configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${name}.pc @ONLY)
        install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${vrx_api_pc_folder} COMPONENT ${component})
    endif()
endfunction()
