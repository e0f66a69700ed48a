# Runs the program as a case says, and compares what it prints, byte for byte, with the files beside the case.
#   cmake -DPROGRAM=... -DEMULATOR=... -DCASE=.../name.case -DOUTPUT=... -P CheckCase.cmake
#
# A case has the exit code in its first line, then an argument in each line, and after a line "<" the file that is
# standard input. name.out is what it prints, name.err what it complains about; where there is no such file, nothing.
# PEXLO_WRITE_CASES in the environment writes them anew.
file(STRINGS ${CASE} lines ENCODING UTF-8)
list(POP_FRONT lines expected_code)
list(FIND lines "<" redirection)
set(input)
if(NOT redirection EQUAL -1)
    list(SUBLIST lines ${redirection} -1 input)
    list(POP_FRONT input)
    list(SUBLIST lines 0 ${redirection} lines)
    cmake_path(GET CASE PARENT_PATH folder)
    set(input INPUT_FILE ${folder}/${input})
endif()

cmake_path(GET CASE PARENT_PATH folder)
cmake_path(GET CASE STEM name)
set(ENV{WINE_PLAIN} 1)
execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${lines} WORKING_DIRECTORY ${folder} ${input}
                OUTPUT_FILE ${OUTPUT}/${name}.out ERROR_FILE ${OUTPUT}/${name}.err RESULT_VARIABLE code)

foreach(kind out err)
    set(expected ${folder}/${name}.${kind})
    set(printed ${OUTPUT}/${name}.${kind})
    if(DEFINED ENV{PEXLO_WRITE_CASES})
        file(SIZE ${printed} size)
        if(size GREATER 0)
            file(COPY_FILE ${printed} ${expected})
        else()
            file(REMOVE ${expected})
        endif()
    endif()
    if(NOT EXISTS ${expected})
        file(WRITE ${OUTPUT}/empty "")
        set(expected ${OUTPUT}/empty)
    endif()
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${printed} ${expected} RESULT_VARIABLE differs)
    if(differs)
        file(READ ${printed} text)
        message(SEND_ERROR "${name}.${kind} is:\n${text}")
    endif()
endforeach()
if(NOT code EQUAL expected_code)
    message(SEND_ERROR "The exit code is ${code} instead of ${expected_code}.")
endif()
