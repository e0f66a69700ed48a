# The program that README.md shows, compiled and linked as a host would: the repository root on the include path,
# the import library, and nothing else.

file(READ ${PROJECT_SOURCE_DIR}/README.md readme)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/README.md)
if(NOT readme MATCHES "```cpp\n(.*)```")
    message(FATAL_ERROR "README.md shows no program")
endif()
string(REGEX REPLACE "\n```.*" "\n" program "${CMAKE_MATCH_1}")
file(CONFIGURE OUTPUT ReadmeExample.cpp CONTENT "${program}" @ONLY)

add_executable(readme_example ${CMAKE_CURRENT_BINARY_DIR}/ReadmeExample.cpp)
set_target_properties(readme_example PROPERTIES CXX_STANDARD 14) # what hosts may still use
if(WIN32)
    target_include_directories(readme_example PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(readme_example PRIVATE ${PROJECT_BINARY_DIR}/libPexlo.dll.a)
    add_dependencies(readme_example Pexlo)
else()
    target_link_libraries(readme_example PRIVATE pexlo)
endif()
