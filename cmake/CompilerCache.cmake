# Compiles go through ccache when it is there. The sloppiness is what ccache asks for before it caches
# anything that uses a precompiled header.

find_program(QUORVAWIZ_CCACHE ccache)
if(QUORVAWIZ_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        env "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
        "${QUORVAWIZ_CCACHE}")
endif()
