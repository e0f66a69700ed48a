# How everything is compiled and linked.

add_compile_options(-Wall -Wextra -Wno-missing-field-initializers -Wshadow -Wconversion -Wformat=2
                    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor> $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual>)

if(PEXLO_SANITIZE)
    add_compile_options(-O1 -g1) # compiling what is instrumented with more takes longer than it saves
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # A control is worked with as MFC programs do: the CWnd that GetDlgItem returns is cast to the class of the control.
    add_compile_options(-fno-sanitize=vptr)
    add_link_options(-fsanitize=address,undefined)
    # Assertions are checked here, our own and those of the standard library.
    add_compile_options(-UNDEBUG)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()

if(WIN32)
    # No run-time library beside the system's own, and nothing that is not called.
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-static -Wl,--gc-sections)
    # Two builds of the same sources give the same bytes.
    add_link_options(-Wl,--no-insert-timestamp)
endif()

# For what is delivered: objects do not name the folders of the sources and of the build.
set(without_folders -ffile-prefix-map=${PROJECT_BINARY_DIR}=build -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
