# Writes Pexlo.def and, with the tools of LLVM, Pexlo.lib: the C interface for compilers other than the library's. What the
# DLL exports, and as what compilers call it, stands in its own import library.
#   cmake -DIMPORT_LIBRARY=... -DBITS=32|64 -DNM=... -DLLVM_DLLTOOL=... -DFOLDER=... -P ImportLibraries.cmake

execute_process(COMMAND ${NM} --defined-only ${IMPORT_LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
set(prefix "")
set(machine i386:x86-64)
if(BITS EQUAL 32)
    set(prefix "_")
    set(machine i386)
endif()
string(REGEX MATCHALL " I __imp_${prefix}Pexlo[A-Za-z0-9_]*(@[0-9]+)?" functions "${symbols}")
list(TRANSFORM functions REPLACE " I __imp_${prefix}" "    ")
list(SORT functions)
if(NOT functions)
    message(FATAL_ERROR "${IMPORT_LIBRARY} has nothing of the C interface.")
endif()

list(TRANSFORM functions REPLACE "@.*" "" OUTPUT_VARIABLE exported)
list(JOIN exported "\n" exported)
file(WRITE ${FOLDER}/Pexlo.def "; The functions of the C interface as Pexlo.dll exports them, undecorated.
;
; 64 bits: `lib /def:Pexlo.def /machine:x64 /out:Pexlo.lib` makes an import library.
; 32 bits: compilers call a __stdcall function by a decorated name (_Pexlo_Create@0), and `lib` cannot be told that the DLL
;          exports it under another one. Link the Pexlo.lib that is delivered, or look the functions up by GetProcAddress.
LIBRARY Pexlo.dll
EXPORTS
${exported}
")

if(LLVM_DLLTOOL)
    # The names as compilers call them; -k says that the DLL has them undecorated.
    list(JOIN functions "\n" functions)
    file(WRITE ${FOLDER}/Pexlo.decorated.def "LIBRARY Pexlo.dll\nEXPORTS\n${functions}\n")
    execute_process(COMMAND ${LLVM_DLLTOOL} -m ${machine} -k -d ${FOLDER}/Pexlo.decorated.def -l ${FOLDER}/Pexlo.lib
                    COMMAND_ERROR_IS_FATAL ANY)
endif()
