# The stand-in of an installed package, as if it were somebody's kernel: KERNEL_PREFIX is where it is installed.
add_library(foreign::kernel INTERFACE IMPORTED GLOBAL)
target_include_directories(foreign::kernel INTERFACE ${CMAKE_CURRENT_LIST_DIR} ${KERNEL_PREFIX}/include/vrx_api-0.2)
target_link_libraries(foreign::kernel INTERFACE ${KERNEL_PREFIX}/lib/libvrx_kernel_standin.so)

# A handle of its own, as if it were that of somebody's drawing database.
add_library(foreign::drawing_database INTERFACE IMPORTED GLOBAL)
target_include_directories(foreign::drawing_database INTERFACE ${CMAKE_CURRENT_LIST_DIR})

# A program that uses the library with it: foreign_handle
cmake_language(EVAL CODE "
    cmake_language(DEFER CALL add_executable foreign_handle ${CMAKE_CURRENT_LIST_DIR}/handle.cpp)
    cmake_language(DEFER CALL target_link_libraries foreign_handle PRIVATE vrx_api::vrx_api vrx_api_warnings)")
