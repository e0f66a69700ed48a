# What `cmake --install` copies: the library with its language libraries, programs, headers, import libraries, a CMake
# package, documentation and samples. docs/packaging.md shows the folders.
#
#   delivered          everything of it that is built; the tests with that label need nothing else
#   import_libraries   Pexlo.def and, where the tools of LLVM are, Pexlo.lib, for hosts of other compilers (Windows only)

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Pexlo)

if(TARGET pexlo_shared)
    set(library pexlo_shared)
    set_target_properties(pexlo_shared PROPERTIES EXPORT_NAME Pexlo)
    set(language_folder ${CMAKE_INSTALL_LIBDIR})
elseif(WIN32)
    set(library Pexlo)
    set(language_folder ${CMAKE_INSTALL_BINDIR})
else()
    return()
endif()

install(TARGETS ${library} EXPORT PexloTargets FILE_SET HEADERS)
install(EXPORT PexloTargets NAMESPACE Pexlo:: DESTINATION ${package_folder})
string(TOUPPER "${CMAKE_BUILD_TYPE}" package_configuration)
configure_package_config_file(cmake/package/PexloConfig.cmake.in PexloConfig.cmake INSTALL_DESTINATION ${package_folder}
                              PATH_VARS language_folder CMAKE_INSTALL_LIBDIR)
write_basic_package_version_file(PexloConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/PexloConfig.cmake ${PROJECT_BINARY_DIR}/PexloConfigVersion.cmake
        DESTINATION ${package_folder})

# The library looks for its languages in its own folder.
get_target_property(language_files language_libraries PEXLO_FILES)
install(FILES ${language_files} DESTINATION ${language_folder})

if(TARGET pexlo_cli)
    foreach(objects pexlo_cli host_parts)
        target_compile_options(${objects} PRIVATE ${without_folders})
    endforeach()
    if(WIN32)
        target_link_options(pexlo_cli PRIVATE $<$<CONFIG:Release>:-s>)
    else()
        target_link_options(pexlo_cli PRIVATE -Wl,--build-id=none)
    endif()
    set_target_properties(pexlo_cli PROPERTIES BUILD_RPATH_USE_ORIGIN ON
                                               INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
    install(TARGETS pexlo_cli)
endif()

if(WIN32)
    find_program(PEXLO_LLVM_DLLTOOL llvm-dlltool DOC "Makes Pexlo.lib, the import library of other compilers")
    set(import_libraries ${PROJECT_BINARY_DIR}/Pexlo.def)
    if(PEXLO_LLVM_DLLTOOL)
        list(APPEND import_libraries ${PROJECT_BINARY_DIR}/Pexlo.lib)
    else()
        message(STATUS "llvm-dlltool was not found: Pexlo.lib is not built.")
    endif()
    set(script ${PROJECT_SOURCE_DIR}/cmake/package/ImportLibraries.cmake)
    add_custom_command(
        OUTPUT ${import_libraries}
        COMMAND ${CMAKE_COMMAND} -DNM=${CMAKE_NM} -DLLVM_DLLTOOL=${PEXLO_LLVM_DLLTOOL} -DFOLDER=${PROJECT_BINARY_DIR}
                -DIMPORT_LIBRARY=$<TARGET_LINKER_FILE:Pexlo> -DBITS=$<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>,64,32> -P ${script}
        DEPENDS Pexlo ${script}
        COMMENT "Making import libraries of the C interface"
        VERBATIM)
    add_custom_target(import_libraries ALL DEPENDS ${import_libraries})
    install(FILES ${import_libraries} DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()

# With the folders that the links of the documents have.
set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc/pexlo)
install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${documents})
install(DIRECTORY docs DESTINATION ${documents})
install(DIRECTORY samples DESTINATION ${CMAKE_INSTALL_DATADIR}/pexlo)

add_custom_target(delivered DEPENDS ${library} language_libraries)
foreach(target pexlo_cli import_libraries)
    if(TARGET ${target})
        add_dependencies(delivered ${target})
    endif()
endforeach()

if(BUILD_TESTING AND NOT PEXLO_SANITIZE) # nobody is given an instrumented library
    include(cmake/package/Tests.cmake)
endif()
