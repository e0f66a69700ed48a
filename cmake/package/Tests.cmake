# Tests of what is delivered.

set(folder ${PROJECT_SOURCE_DIR}/cmake/package)
set(bits $<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>,64,32>)

# The programs of a host that finds the library; it is compiled as the library is.
set(programs UsesInterface)
set(options -G ${CMAKE_GENERATOR} -DCMAKE_BUILD_TYPE=Release)
if(CMAKE_TOOLCHAIN_FILE)
    list(APPEND options --toolchain ${CMAKE_TOOLCHAIN_FILE})
endif()
if(WIN32)
    list(APPEND programs UsesClass)
    list(APPEND options -DCMAKE_EXE_LINKER_FLAGS=-static) # no run-time library of the compiler
endif()
add_test(NAME installation
         COMMAND ${CMAKE_COMMAND} -DBUILD=${PROJECT_BINARY_DIR} -DFOLDER=${PROJECT_BINARY_DIR}/installation
                 -DVERSION=${PROJECT_VERSION} -DSUFFIX=${CMAKE_EXECUTABLE_SUFFIX} "-DPROGRAMS=${programs}"
                 -DCOMMAND_LINE=$<TARGET_EXISTS:pexlo_cli>
                 "-DOPTIONS=${options}" "-DEMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}"
                 -P ${folder}/CheckInstallation.cmake)
set_tests_properties(installation PROPERTIES LABELS delivered TIMEOUT 300)

set(files $<TARGET_FILE:${library}> ${language_files} ${import_libraries})
if(TARGET pexlo_cli)
    list(APPEND files $<TARGET_FILE:pexlo_cli>)
endif()
add_test(NAME reproducible
         COMMAND ${CMAKE_COMMAND} "-DFILES=${files}" -DSOURCE=${PROJECT_SOURCE_DIR} -DBUILD=${PROJECT_BINARY_DIR}
                 -P ${folder}/CheckMeans.cmake)
set_tests_properties(reproducible PROPERTIES LABELS delivered)

if(NOT WIN32)
    add_test(NAME exports
             COMMAND ${CMAKE_COMMAND} -DLIBRARY=$<TARGET_FILE:pexlo_shared> -DHEADER=${PROJECT_SOURCE_DIR}/core/pexlo.h
                     -DNM=${CMAKE_NM} -P ${folder}/CheckSharedExports.cmake)
    set_tests_properties(exports PROPERTIES LABELS delivered)
    return()
endif()

find_program(PEXLO_CLANG clang)
find_program(PEXLO_LLD_LINK lld-link)
find_library(PEXLO_KERNEL32 kernel32)
if(PEXLO_LLVM_DLLTOOL AND PEXLO_CLANG AND PEXLO_LLD_LINK)
    add_test(NAME import_library
             COMMAND ${CMAKE_COMMAND} -DFOLDER=${PROJECT_BINARY_DIR}/import_library -DBUILD=${PROJECT_BINARY_DIR}
                     -DBITS=${bits} -DCLANG=${PEXLO_CLANG} -DLLD_LINK=${PEXLO_LLD_LINK}
                     -DLLVM_DLLTOOL=${PEXLO_LLVM_DLLTOOL} -DSYSTEM=${PEXLO_KERNEL32} -DSOURCE=${PROJECT_SOURCE_DIR}
                     "-DEMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}" -P ${folder}/CheckImportLibrary.cmake)
    set_tests_properties(import_library PROPERTIES LABELS delivered TIMEOUT 120)
else()
    message(STATUS "Clang or lld-link was not found: Pexlo.lib is not tested.")
endif()
