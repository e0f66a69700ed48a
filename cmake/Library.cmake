# The library: its objects, linked directly by tests, measurements and native programs, and on Windows the DLL.
#
#   afx      the part of MFC that the library is written against, over this desktop
#   wizard   core, dialogs and the C interface
#   pexlo    both, with the module's own resources
#   Pexlo    Pexlo.dll and libPexlo.dll.a (Windows only)
#   pexlo_shared   libpexlo.so, the C interface without windows (natively only)
#   robot    what tests and recorded sessions need beside the library: CDialogRobot, pictures, the console. No part of
#            the DLL; compiled by each program that links it.

include(cmake/StdcallExports.cmake)

if(WIN32)
    set(desktop win32)
else()
    set(desktop offscreen)
endif()
file(GLOB afx_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/afx/*.cpp ${PROJECT_SOURCE_DIR}/afx/${desktop}/*.cpp)
file(GLOB_RECURSE wizard_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/core/*.cpp ${PROJECT_SOURCE_DIR}/dialogs/*.cpp
     ${PROJECT_SOURCE_DIR}/capi/*.cpp)
file(GLOB robot_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/afx/DialogRobot*.cpp)
list(APPEND robot_sources ${PROJECT_SOURCE_DIR}/afx/${desktop}/Console.cpp
                          ${PROJECT_SOURCE_DIR}/afx/${desktop}/Screenshot.cpp)
list(REMOVE_ITEM afx_sources ${robot_sources})
if(PEXLO_WITH_MFC)
    list(FILTER afx_sources INCLUDE REGEX "/afx/(Clipboard|CodePage|HtmlHelp|System|ThreadState|win32/DesktopLock|win32/ExceptionMemory)\\.cpp$")
endif()

# What hosts include: the class with what its header includes, and the C interface.
file(GLOB interface_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/core/pexlo.h ${PROJECT_SOURCE_DIR}/core/pexlo.hpp)
set(class_headers core/FunWizard.h core/Instructions.h core/Records.h
    afx/afx.h afx/Collections.h afx/Collections.inl afx/Controls.h afx/Dialog.h afx/Export.h afx/Gdi.h afx/Geometry.h
    afx/Menu.h afx/MessageMap.h afx/Object.h afx/PackBegin.h afx/PackEnd.h afx/Platform.h afx/Resources.h afx/String.h
    afx/Window.h)
list(TRANSFORM class_headers PREPEND ${PROJECT_SOURCE_DIR}/)

add_library(afx OBJECT ${afx_sources})
add_library(wizard OBJECT ${wizard_sources})
foreach(objects afx wizard)
    target_compile_definitions(${objects} PRIVATE PEXLO_BUILD $<$<BOOL:${PEXLO_WITH_MFC}>:PEXLO_WITH_MFC>
                               PEXLO_VERSION_MAJOR=${PROJECT_VERSION_MAJOR} PEXLO_VERSION_MINOR=${PROJECT_VERSION_MINOR}
                               PEXLO_VERSION_PATCH=${PROJECT_VERSION_PATCH})
    target_compile_options(${objects} PRIVATE ${without_folders})
    target_include_directories(${objects} PUBLIC ${PROJECT_SOURCE_DIR})
    set_target_properties(${objects} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden
                                                VISIBILITY_INLINES_HIDDEN ON)
    if(NOT PEXLO_WITH_MFC)
        target_precompile_headers(${objects} PRIVATE ${PROJECT_SOURCE_DIR}/afx/afx.h)
    endif()
endforeach()

# Dialogs are as fast as the system is: what a higher level of optimization brings is only size. The generators are
# measured against plain vectors.
target_compile_options(afx PRIVATE $<$<CONFIG:Release>:-Os>)
target_compile_options(wizard PRIVATE $<$<CONFIG:Release>:-O2>)

set(system_libraries $<$<BOOL:${WIN32}>:gdi32 user32 advapi32>)

add_library(pexlo INTERFACE)
target_sources(pexlo INTERFACE $<TARGET_OBJECTS:afx> $<TARGET_OBJECTS:wizard>)
target_compile_definitions(pexlo INTERFACE PEXLO_STATIC)
target_include_directories(pexlo INTERFACE ${PROJECT_SOURCE_DIR})
target_link_libraries(pexlo INTERFACE module_resources ${system_libraries})

add_library(robot INTERFACE)
target_sources(robot INTERFACE ${robot_sources})
target_include_directories(robot INTERFACE ${PROJECT_SOURCE_DIR})
target_link_libraries(robot INTERFACE ${system_libraries})

if(WIN32)
    add_library(Pexlo SHARED $<TARGET_OBJECTS:afx> $<TARGET_OBJECTS:wizard>)
    set_target_properties(Pexlo PROPERTIES PREFIX "" IMPORT_PREFIX "lib")
    target_link_libraries(Pexlo PRIVATE module_resources version_resource ${system_libraries})
    target_sources(Pexlo PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${class_headers} ${interface_headers})
    export_stdcall_functions(Pexlo wizard)
    target_link_options(Pexlo PRIVATE -Wl,--exclude-all-symbols $<$<CONFIG:Release>:-s>)
else()
    add_library(pexlo_shared SHARED $<TARGET_OBJECTS:afx> $<TARGET_OBJECTS:wizard>)
    set_target_properties(pexlo_shared PROPERTIES OUTPUT_NAME pexlo VERSION ${PROJECT_VERSION}
                                                  SOVERSION ${PROJECT_VERSION_MAJOR})
    target_link_libraries(pexlo_shared PRIVATE module_resources)
    target_sources(pexlo_shared PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${interface_headers})
    # A build id would be one of the debugging information, which differs from build to build and is not delivered.
    target_link_options(pexlo_shared PRIVATE -Wl,--build-id=none -Wl,--exclude-libs,ALL)
    add_dependencies(pexlo_shared language_libraries)
endif()
