# How everything is compiled and linked.

add_compile_options(-Wall -Wextra -Wno-missing-field-initializers)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

if(PEXLO_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # A control is worked with as MFC programs do: the CWnd that GetDlgItem returns is cast to the class of the control.
    add_compile_options(-fno-sanitize=vptr)
    add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
    # No run-time library beside the system's own, and nothing that is not called.
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-static -Wl,--gc-sections)
endif()
