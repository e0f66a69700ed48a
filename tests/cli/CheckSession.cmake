# What the command line prints for a recorded session's entries stands, byte for byte, in the session's report.
#   cmake -DPRINTED=... -DREPORT=... -P CheckSession.cmake
file(READ ${PRINTED} printed)
file(READ ${REPORT} report)
string(LENGTH "${printed}" length)
string(FIND "${report}" "${printed}" place)
if(length LESS 100 OR place EQUAL -1)
    message(FATAL_ERROR "${REPORT} does not contain what ${PRINTED} holds.")
endif()
