# The archive that is delivered: `cmake --build --preset win32 --target package` gives build/win32/Pexlo-1.0.0-win32.zip.

set(CPACK_PACKAGE_NAME Pexlo)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        set(CPACK_SYSTEM_NAME win64)
    else()
        set(CPACK_SYSTEM_NAME win32)
    endif()
else()
    set(CPACK_GENERATOR TGZ)
    set(CPACK_SYSTEM_NAME linux)
    set(CPACK_STRIP_FILES ON) # on Windows the linker does it
endif()
set(CPACK_PACKAGE_FILE_NAME Pexlo-${PROJECT_VERSION}-${CPACK_SYSTEM_NAME})
set(CPACK_VERBATIM_VARIABLES ON)

# Two archives of the same files are the same. Everything in them is as old as the release that the changelog names, or as
# SOURCE_DATE_EPOCH says; cpack itself packs in the order in which a folder lists its files, and notes who owns them.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(READ ${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog)
string(REPLACE "." "\\." version ${PROJECT_VERSION})
if(NOT changelog MATCHES "\n## \\[${version}\\] - ([0-9]+-[0-9]+-[0-9]+)\n")
    message(FATAL_ERROR "CHANGELOG.md does not say when version ${PROJECT_VERSION} was released.")
endif()
set(CPACK_PEXLO_DATE ${CMAKE_MATCH_1})
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/package/CPackDate.cmake)
find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
    set(CPACK_PEXLO_PYTHON ${Python3_EXECUTABLE})
    set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/package/CPackNormalize.cmake)
else()
    message(STATUS "Python was not found: archives of two builds may differ in the order of their files.")
endif()

if(BUILD_TESTING AND NOT PEXLO_SANITIZE AND Python3_FOUND)
    string(REGEX REPLACE "^win.*" "windows" system ${CPACK_SYSTEM_NAME})
    string(REPLACE TGZ tar.gz suffix ${CPACK_GENERATOR})
    string(TOLOWER ${suffix} suffix)
    set(folder ${PROJECT_SOURCE_DIR}/cmake/package)
    add_test(NAME archive
             COMMAND ${CMAKE_COMMAND} -DBUILD=${PROJECT_BINARY_DIR} -DFOLDER=${PROJECT_BINARY_DIR}/archive
                     -DNAME=${CPACK_PACKAGE_FILE_NAME}.${suffix} -DDATE=${CPACK_PEXLO_DATE}
                     -DPROGRAMS=$<$<TARGET_EXISTS:pexlo_cli>:bin/pexlo${CMAKE_EXECUTABLE_SUFFIX}>
                     -DEXPECTED=${folder}/contents-${system}.txt -P ${folder}/CheckArchive.cmake)
    set_tests_properties(archive PROPERTIES LABELS delivered TIMEOUT 300)
endif()

include(CPack)
