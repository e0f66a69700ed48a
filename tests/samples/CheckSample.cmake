# Runs the commands of a sample and compares what they print with the recorded session.
#   cmake -DPEXLO=... -DHEADING=... [-DCOMMANDS=...] -DFOLDER=... -DSESSION=... -P CheckSample.cmake
#
#   PEXLO      the folder of the installed library, for the commands in the environment, too
#   COMMANDS   for the shell; empty: those that samples/README.md has below HEADING
#   FOLDER     where it happens

set(samples ${PEXLO}/share/pexlo/samples)
file(READ ${samples}/README.md readme)
if(NOT COMMANDS)
    string(FIND "${readme}" "\n## ${HEADING}\n" begin)
    if(begin EQUAL -1)
        message(FATAL_ERROR "samples/README.md has no heading ${HEADING}.")
    endif()
    string(SUBSTRING "${readme}" ${begin} -1 section)
    string(REGEX MATCH "```sh\n([^`]+)```" block "${section}")
    set(COMMANDS "${CMAKE_MATCH_1}")
endif()

# The first message that the session shows, and the first table.
file(READ ${SESSION} session)
string(REGEX MATCH "message box \"[^\"]*\": \"([^\"]*)\"" message "${session}")
string(REPLACE "\\n" "\n" message "${CMAKE_MATCH_1}")
string(REGEX MATCH "\nData table: [0-9]+\n( [^\n]*\n)+" table "${session}")
set(expected "start is refused: ${message}\n${table}")
if(NOT message OR NOT table)
    message(FATAL_ERROR "${SESSION} has no message or no table.")
endif()
string(FIND "${readme}" "\n${expected}" shown)
if(shown EQUAL -1)
    message(FATAL_ERROR "samples/README.md does not show\n${expected}")
endif()

file(REMOVE_RECURSE ${FOLDER})
file(COPY ${samples}/ DESTINATION ${FOLDER})
set(ENV{PEXLO} ${PEXLO})
set(ENV{LD_LIBRARY_PATH} ${PEXLO}/lib)
execute_process(COMMAND bash -euc "${COMMANDS}" WORKING_DIRECTORY ${FOLDER} OUTPUT_VARIABLE output ERROR_VARIABLE errors
                RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR errors MATCHES "[Ww]arning" OR NOT output STREQUAL expected)
    message(FATAL_ERROR "${COMMANDS}\nend with ${result} and print\n${output}${errors}and not\n${expected}")
endif()
