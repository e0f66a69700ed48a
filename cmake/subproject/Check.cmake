# Configures a host's project, compiles its own source and links the languages; the library is compiled elsewhere.
#   cmake -DPEXLO=... -DFOLDER=... -DGENERATOR=... -DTOOLCHAIN=... -P Check.cmake
file(REMOVE_RECURSE ${FOLDER})
set(toolchain)
if(TOOLCHAIN)
    set(toolchain --toolchain ${TOOLCHAIN})
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${FOLDER} -G ${GENERATOR} -DPEXLO=${PEXLO} ${toolchain}
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${FOLDER} --target language_libraries CMakeFiles/Host.dir/main.cpp.${OBJECT}
                COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS ${FOLDER}/pexlo/PlxRcEnu.DLL)
    message(FATAL_ERROR "The language library does not lie where the DLL does.")
endif()
