# The stand-in of an installed package, as if it were somebody's kernel: KERNEL_PREFIX is where it is installed.
add_library(foreign::kernel INTERFACE IMPORTED GLOBAL)
target_include_directories(foreign::kernel INTERFACE ${CMAKE_CURRENT_LIST_DIR} ${KERNEL_PREFIX}/include)
target_link_libraries(foreign::kernel INTERFACE ${KERNEL_PREFIX}/lib/libacis_kernel.so)
