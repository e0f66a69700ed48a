# Plays sessions with the program itself and compares what it prints, byte for byte, with the reports beside the sessions.
#   cmake -DPROGRAM=... -DEMULATOR=... "-DSESSIONS=...;..." -DOUTPUT=... -P CheckSessions.cmake
set(reports)
foreach(session IN LISTS SESSIONS)
    cmake_path(REPLACE_EXTENSION session txt OUTPUT_VARIABLE report)
    list(APPEND reports ${report})
endforeach()
execute_process(COMMAND ${CMAKE_COMMAND} -E cat ${reports} OUTPUT_FILE ${OUTPUT}.expected COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${EMULATOR} ${PROGRAM} --play ${SESSIONS} OUTPUT_FILE ${OUTPUT} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUTPUT} ${OUTPUT}.expected COMMAND_ERROR_IS_FATAL ANY)
