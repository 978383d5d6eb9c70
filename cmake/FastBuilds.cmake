# What makes builds faster where it is installed, and nothing else of them: a cache of compiled files, which a touched header,
# another branch or a second clone fills from, and a linker that takes a tenth of the time.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Precompiled headers are told apart by what they hold, as the cache's own manual has it for them.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

# What is built for use is linked by the linker that makes it smallest (SmallProgram.cmake).
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM AND NOT CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12.1 AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    add_link_options(-fuse-ld=mold)
endif()
