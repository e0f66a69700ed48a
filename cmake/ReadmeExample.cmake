# The programs that README.md shows, compiled and linked as a host would: the repository root on the include path,
# the import library, and nothing else.

file(READ ${PROJECT_SOURCE_DIR}/README.md readme)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/README.md)

# Writes the program between "```<language>" and "```" to a file, with texts before and behind it.
function(write_readme_program language file before behind)
    string(FIND "${readme}" "```${language}\n" start)
    if(start LESS 0)
        message(FATAL_ERROR "README.md shows no program in ${language}")
    endif()
    string(LENGTH "```${language}\n" fence)
    math(EXPR start "${start} + ${fence}")
    string(SUBSTRING "${readme}" ${start} -1 program)
    string(FIND "${program}" "```" end)
    string(SUBSTRING "${program}" 0 ${end} program)
    file(CONFIGURE OUTPUT ${file} CONTENT "${before}${program}${behind}" @ONLY)
endfunction()

write_readme_program(cpp ReadmeExample.cpp "" "")
write_readme_program(c ReadmeInterface.c "#include \"core/pexlo.h\"\n\n#include <stdio.h>\n\nint main(void)\n{\n"
                     "return Pexlo_GetDataInfoCount(wizard) == 2 && Pexlo_Destroy(wizard) == 1 ? 0 : 1;\n}\n")

add_executable(readme_example ${CMAKE_CURRENT_BINARY_DIR}/ReadmeExample.cpp)
set_target_properties(readme_example PROPERTIES CXX_STANDARD 14) # what hosts may still use
add_executable(readme_interface ${CMAKE_CURRENT_BINARY_DIR}/ReadmeInterface.c)
target_compile_options(readme_interface PRIVATE -Wno-missing-field-initializers)
if(WIN32)
    foreach(example readme_example readme_interface)
        target_include_directories(${example} PRIVATE ${PROJECT_SOURCE_DIR})
        target_link_libraries(${example} PRIVATE ${PROJECT_BINARY_DIR}/libPexlo.dll.a)
        add_dependencies(${example} Pexlo)
    endforeach()
else()
    target_link_libraries(readme_example PRIVATE pexlo)
    target_link_libraries(readme_interface PRIVATE pexlo_shared)
endif()
add_test(NAME readme_interface COMMAND readme_interface)
