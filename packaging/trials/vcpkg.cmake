# usage: cmake -DBUILD=FOLDER -DLINKAGE=dynamic|static -P packaging/trials/vcpkg.cmake
# Runs the port's file as vcpkg would: with no feature, with some, and with all of them.
cmake_minimum_required(VERSION 3.25)
get_filename_component(sources ${CMAKE_CURRENT_LIST_DIR}/../.. ABSOLUTE)
get_filename_component(BUILD ${BUILD} ABSOLUTE)
set(PORT vrx-api)
set(VCPKG_LIBRARY_LINKAGE ${LINKAGE})
set(CURRENT_PORT_DIR ${sources}/packaging/vcpkg)
set(CURRENT_BUILDTREES_DIR ${BUILD}/tree)
set(CURRENT_PACKAGES_DIR ${BUILD}/packages)
include(${CMAKE_CURRENT_LIST_DIR}/vcpkg_functions.cmake)

foreach(FEATURES IN ITEMS core bridge "bridge;tools" "bridge;kernel-standin;libdeflate;tools")
    message(STATUS "${LINKAGE}: ${FEATURES}")
    include(${CURRENT_PORT_DIR}/portfile.cmake)
endforeach()
