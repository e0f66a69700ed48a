# Installs the library, moves the folder elsewhere, and builds and runs a host's project that finds it there.
#   cmake -DBUILD=... -DFOLDER=... -DVERSION=... -DSUFFIX=... -DPROGRAMS=... -DOPTIONS=... [-DEMULATOR=...]
#         [-DCOMMAND_LINE=1] -P CheckInstallation.cmake
file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER}/first OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${FOLDER}/first ${FOLDER}/moved)

file(GLOB_RECURSE descriptions ${FOLDER}/moved/lib/cmake/*.cmake)
if(NOT descriptions)
    message(FATAL_ERROR "There is no CMake package.")
endif()
foreach(description IN LISTS descriptions)
    file(STRINGS ${description} paths REGEX "${FOLDER}|${BUILD}")
    if(paths)
        message(FATAL_ERROR "${description} names a folder of this machine: ${paths}")
    endif()
endforeach()

execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${FOLDER}/build ${OPTIONS}
                        -DCMAKE_PREFIX_PATH=${FOLDER}/moved
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${FOLDER}/build --target ${PROGRAMS} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

set(UsesClass_EXPECTED "Japanese found, code page 932\n")
set(UsesInterface_EXPECTED "Version ${VERSION}\nJapanese found, code page 932\n")
foreach(program IN LISTS PROGRAMS)
    execute_process(COMMAND ${EMULATOR} ${FOLDER}/build/${program}${SUFFIX} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output STREQUAL ${program}_EXPECTED)
        message(FATAL_ERROR "${program} prints\n${output}and not\n${${program}_EXPECTED}")
    endif()
endforeach()

# The command line finds the library, and the library its languages.
if(COMMAND_LINE)
    set(program ${FOLDER}/moved/bin/pexlo${SUFFIX})
    execute_process(COMMAND ${EMULATOR} ${program} --version OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output STREQUAL "pexlo ${VERSION}\n")
        message(FATAL_ERROR "pexlo --version prints\n${output}")
    endif()
    execute_process(COMMAND ${EMULATOR} ${program} describe F168 --language English OUTPUT_VARIABLE english
                    COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${EMULATOR} ${program} describe F168 --language Japanese OUTPUT_VARIABLE japanese
                    COMMAND_ERROR_IS_FATAL ANY)
    if(english STREQUAL japanese)
        message(FATAL_ERROR "pexlo describes a dialog in English when it should in Japanese:\n${japanese}")
    endif()
endif()
