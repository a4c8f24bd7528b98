# What developers use many times a day: the quick tests, by names that can be typed, and an editor that
# knows how files are compiled.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

# names_of_tests(VARIABLE OPTION...): of those that ctest would run.
function(names_of_tests variable)
    execute_process(COMMAND ${CMAKE_CTEST_COMMAND} --test-dir ${BUILD_DIR} -N ${ARGN}
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "Test +#[0-9]+: [^\n]+" names "${output}")
    list(TRANSFORM names REPLACE "^Test +#[0-9]+: " "")
    if(NOT names)
        message(FATAL_ERROR "ctest ${ARGN} runs no test")
    endif()
    set(${variable} "${names}" PARENT_SCOPE)
endfunction()

names_of_tests(names)
set(long "")
foreach(name IN LISTS names)
    string(LENGTH "${name}" length)
    if(length GREATER 120 OR name MATCHES "[ #]") # those show the values of parameters
        list(APPEND long "${name}")
    endif()
endforeach()
expect_same("The list of long names of tests" "${long}" "")

names_of_tests(quick -LE slow)
list(FILTER quick INCLUDE REGEX "^Package\\.|LinearReading|^HostileFile\\.")
expect_same("The list of slow tests among the quick ones" "${quick}" "")

file(READ ${SOURCE_DIR}/.clangd clangd)
if(NOT clangd MATCHES "CompilationDatabase: build/([a-z]+)\n")
    message(FATAL_ERROR "clangd is not told where the compilation database is")
endif()
set(preset ${CMAKE_MATCH_1})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} --list-presets
    OUTPUT_VARIABLE presets COMMAND_ERROR_IS_FATAL ANY)
if(NOT presets MATCHES "\"${preset}\"" OR NOT EXISTS ${BUILD_DIR}/compile_commands.json)
    message(FATAL_ERROR "There is no compilation database in build/${preset}")
endif()
