# A compiler cache serves every checkout on the machine. It cannot serve what is compiled with precompiled headers, which
# name the folder they were made in: these are for machines without one.

find_program(CCACHE ccache)
if(CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
if(CMAKE_CXX_COMPILER_LAUNCHER AND NOT DEFINED CMAKE_DISABLE_PRECOMPILE_HEADERS)
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
