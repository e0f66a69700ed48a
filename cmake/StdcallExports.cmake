# Exports the C interface of the 32-bit DLL under undecorated names, as hosts of every language look them up, while its
# import library has the decorated ones that compilers call: Pexlo_Create@0 in a program becomes Pexlo_Create in the DLL.
# A .def file of the linker says both; what follows @ is read from the objects.
#
#   export_stdcall_functions(target objects...)   of those object libraries, from that DLL
#
# As a script: cmake -DNM=... -DOBJECTS=... -DDEF=... -P StdcallExports.cmake

if(CMAKE_SCRIPT_MODE_FILE)
    list(FILTER OBJECTS EXCLUDE REGEX "\\.gch$") # the precompiled header counts as one, too
    execute_process(COMMAND ${NM} --defined-only --extern-only ${OBJECTS} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL " T _Pexlo_[A-Za-z0-9_]+@[0-9]+" functions "${symbols}")
    list(TRANSFORM functions REPLACE " T _((Pexlo_.+)@.+)" "    \\1 == \\2\n")
    list(SORT functions)
    list(JOIN functions "" functions)
    file(WRITE ${DEF} "EXPORTS\n${functions}")
    return()
endif()

function(export_stdcall_functions target)
    if(NOT WIN32 OR NOT CMAKE_SIZEOF_VOID_P EQUAL 4)
        return()
    endif()
    list(TRANSFORM ARGN REPLACE "(.+)" "$<TARGET_OBJECTS:\\1>" OUTPUT_VARIABLE objects)
    set(def ${CMAKE_CURRENT_BINARY_DIR}/${target}.stdcall.def)
    set(script ${PROJECT_SOURCE_DIR}/cmake/StdcallExports.cmake)
    add_custom_command(
        OUTPUT ${def}
        COMMAND ${CMAKE_COMMAND} -DNM=${CMAKE_NM} "-DOBJECTS=${objects}" -DDEF=${def} -P ${script}
        DEPENDS ${objects} ${script}
        COMMENT "Naming the exports of ${target}"
        VERBATIM)
    target_sources(${target} PRIVATE ${def})
endfunction()
