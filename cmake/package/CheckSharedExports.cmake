# Compares what libpexlo.so exports with the functions of the C interface. Copies of templates of the standard library, which
# every library has, count for nothing.
#   cmake -DLIBRARY=... -DHEADER=core/pexlo.h -DNM=... -P CheckSharedExports.cmake
execute_process(COMMAND ${NM} --dynamic --defined-only ${LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL " [A-Za-z] [^\n]+" exported "${symbols}")
list(FILTER exported EXCLUDE REGEX "^ [Wu] _Z[A-Z]*(St|NSt|NKSt|N9__gnu_cxx|NK9__gnu_cxx)")
list(TRANSFORM exported REPLACE "^ . " "")
list(SORT exported)

file(STRINGS ${HEADER} functions REGEX "^ *PEXLO_API .*PEXLO_CALL Pexlo_")
list(TRANSFORM functions REPLACE ".*PEXLO_CALL (Pexlo_[A-Za-z0-9_]+)\\(.*" "\\1")
list(SORT functions)

set(unforeseen ${exported})
list(REMOVE_ITEM unforeseen ${functions})
set(missing ${functions})
list(REMOVE_ITEM missing ${exported})
if(unforeseen OR missing)
    message(FATAL_ERROR "libpexlo.so exports what it should not: ${unforeseen}\nIt does not export: ${missing}")
endif()
list(LENGTH exported count)
message(STATUS "${count} exports")
