# That all DLLs that are delivered were built for the same processor as the programs that load them.
#   cmake "-DIMAGES=...;..." -DFORMAT=pei-x86-64 -DOBJDUMP=... -P CheckImages.cmake
list(LENGTH IMAGES count)
if(count LESS 2)
    message(FATAL_ERROR "Not the library and its languages: ${IMAGES}")
endif()
foreach(image IN LISTS IMAGES)
    execute_process(COMMAND ${OBJDUMP} -f ${image} OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    if(NOT headers MATCHES "file format ${FORMAT}\n")
        message(FATAL_ERROR "No image of format ${FORMAT}: ${headers}")
    endif()
endforeach()
message(STATUS "${count} images of format ${FORMAT}")
