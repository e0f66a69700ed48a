# Builds a program as Visual C++ would, with the compiler and linker of LLVM in its place, against the import library that is
# delivered, in 64 bits also against one made of Pexlo.def, and runs it.
#   cmake -DFOLDER=... -DBUILD=... -DBITS=32|64 -DCLANG=... -DLLD_LINK=... -DLLVM_DLLTOOL=... -DSYSTEM=libkernel32.a
#         -DSOURCE=... -DEMULATOR=... -P CheckImportLibrary.cmake
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})
file(CREATE_LINK ${BUILD}/Pexlo.dll ${FOLDER}/Pexlo.dll)

set(libraries ${BUILD}/Pexlo.lib)
set(processor i686)
set(options /safeseh:no) # the system's import library comes from another compiler
if(BITS EQUAL 64)
    set(processor x86_64)
    set(options)
    execute_process(COMMAND ${LLVM_DLLTOOL} -m i386:x86-64 -d ${BUILD}/Pexlo.def -l ${FOLDER}/FromDef.lib
                    COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND libraries ${FOLDER}/FromDef.lib)
endif()

execute_process(COMMAND ${CLANG} --target=${processor}-pc-windows-msvc -Wall -Wextra -Werror -I${SOURCE}
                        -c ${CMAKE_CURRENT_LIST_DIR}/UsesImportLibrary.c -o ${FOLDER}/program.obj
                COMMAND_ERROR_IS_FATAL ANY)
foreach(library IN LISTS libraries)
    execute_process(COMMAND ${LLD_LINK} /nologo /entry:start /subsystem:console /nodefaultlib ${options}
                            ${FOLDER}/program.obj ${library} ${SYSTEM} /out:${FOLDER}/program.exe
                    COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${EMULATOR} ${FOLDER}/program.exe RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "The program that was linked with ${library} ends with ${result}.")
    endif()
endforeach()
