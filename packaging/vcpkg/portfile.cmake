# The sources have no public address yet. URL takes that of any Git repository, REF the commit of the version.
vcpkg_from_git(
    OUT_SOURCE_PATH SOURCE_PATH
    URL https://vrx-api.example/vrx_api.git
    REF 0000000000000000000000000000000000000000
    HEAD_REF main
)

vcpkg_check_features(OUT_FEATURE_OPTIONS FEATURE_OPTIONS
    FEATURES
        bridge          VRX_API_BUILD_BRIDGE
        kernel-standin  VRX_API_KERNEL_STANDIN
        libdeflate      VRX_API_LIBDEFLATE
        tools           VRX_API_BUILD_TOOLS
)

vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        ${FEATURE_OPTIONS}
)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME vrx_api CONFIG_PATH lib/cmake/vrx_api)
if(VCPKG_TARGET_IS_WINDOWS)
    # There the port of RapidJSON has no file for pkg-config, which ours names.
    vcpkg_fixup_pkgconfig(SKIP_CHECK)
else()
    vcpkg_fixup_pkgconfig()
endif()
if("tools" IN_LIST FEATURES)
    vcpkg_copy_tools(TOOL_NAMES vrx AUTO_CLEAN)
endif()
vcpkg_copy_pdbs()

file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/packaging/debian/copyright")
