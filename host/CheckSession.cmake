# Plays a session with the program itself and compares what it prints, byte for byte, with the report beside the session.
#   cmake -DPROGRAM=... -DEMULATOR=... -DSESSION=... -DOUTPUT=... -P CheckSession.cmake
cmake_path(REPLACE_EXTENSION SESSION txt OUTPUT_VARIABLE expected)
execute_process(COMMAND ${EMULATOR} ${PROGRAM} --play ${SESSION} OUTPUT_FILE ${OUTPUT} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUTPUT} ${expected} COMMAND_ERROR_IS_FATAL ANY)
