# Run by cpack when it has made the archives.
execute_process(COMMAND ${CPACK_PEXLO_PYTHON} ${CMAKE_CURRENT_LIST_DIR}/NormalizeArchive.py ${CPACK_PACKAGE_FILES}
                COMMAND_ERROR_IS_FATAL ANY)
