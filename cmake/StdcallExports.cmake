# Exports the C interface of the 32-bit DLL under undecorated names, as hosts of every language look them up, while its
# import library has the decorated ones that compilers call: Pexlo_Create@0 in a program becomes Pexlo_Create in the DLL.
#
#   export_stdcall_functions(target objects...)   of those object libraries, from that DLL
#
# The linker's .def file names the functions; what follows @ is read from the objects. It could rename them for the import
# library too (==), but sorts what the DLL exports by the names in programs, and the loader looks them up by bisection:
# Pexlo_CreateInstCode_11@4 stands before Pexlo_CreateInstCode_1@4. So dlltool makes the import library. What the C++
# classes have of __stdcall keeps its decoration in both.
#
# As a script: cmake -DNM=... -DOBJECTS=... -DDEF=... -P StdcallExports.cmake                      writes the .def file
#              cmake -DDLLTOOL=... -DEXPORTS=... -DDEF=... -DDLL=... -DLIBRARY=... -P StdcallExports.cmake   the import library

if(CMAKE_SCRIPT_MODE_FILE AND NM)
    list(FILTER OBJECTS EXCLUDE REGEX "\\.gch$") # the precompiled header counts as one, too
    execute_process(COMMAND ${NM} --defined-only --extern-only ${OBJECTS} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL " T _Pexlo_[A-Za-z0-9_]+@[0-9]+" functions "${symbols}")
    list(TRANSFORM functions REPLACE " T _((Pexlo_.+)@.+)" "    \\2 = \\1\n")
    list(SORT functions)
    list(JOIN functions "" functions)
    file(WRITE ${DEF} "EXPORTS\n${functions}")
    return()
endif()

# EXPORTS: what the linker says that the DLL exports, the functions undecorated.
if(CMAKE_SCRIPT_MODE_FILE)
    file(READ ${EXPORTS} exports)
    string(REGEX REPLACE " @ ?[0-9]+" "" exports "${exports}")
    file(STRINGS ${DEF} functions REGEX " = ")
    foreach(function IN LISTS functions)
        string(REGEX MATCH "(Pexlo_.+) = (.+)" function "${function}")
        string(REGEX REPLACE "(\n +)${CMAKE_MATCH_1}( = [^\n]*)?(\n)" "\\1${CMAKE_MATCH_2} == ${CMAKE_MATCH_1}\\3"
               exports "${exports}")
    endforeach()
    file(WRITE ${LIBRARY}.def "${exports}")
    execute_process(COMMAND ${DLLTOOL} --deterministic-libraries --temp-prefix Pexlo --dllname ${DLL}
                            --input-def ${LIBRARY}.def --output-lib ${LIBRARY}
                    COMMAND_ERROR_IS_FATAL ANY)
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
    set(exports ${CMAKE_CURRENT_BINARY_DIR}/${target}.exports.def)
    target_link_options(${target} PRIVATE -Wl,--output-def,${exports})
    add_custom_command(
        TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -DDLLTOOL=${CMAKE_DLLTOOL} -DEXPORTS=${exports} -DDEF=${def}
                -DLIBRARY=$<TARGET_LINKER_FILE:${target}> -DDLL=$<TARGET_FILE_NAME:${target}> -P ${script}
        VERBATIM)
endfunction()
