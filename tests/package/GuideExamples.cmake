# The programs of examples/guide build against the installed library as a host does. The documents
# quote them and what they print, word for word. A line above each block of code says what it quotes:
#
#     <!-- PROGRAM.cpp [NAME] -->             ```cpp: the lines between "//! [NAME]" and "//! [NAME]"
#     <!-- PROGRAM.cpp ARGUMENT... prints --> ```text: the output, run in examples/packages

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

build_example(guide)

# marked_lines(VARIABLE PROGRAM NAME): without the indentation of the first of them.
function(marked_lines variable program name)
    file(READ ${SOURCE_DIR}/examples/guide/${program}.cpp source)
    set(mark "//! [${name}]\n")
    string(LENGTH "${mark}" length)
    string(FIND "${source}" "${mark}" begin)
    string(FIND "${source}" "${mark}" end REVERSE)
    if(begin EQUAL end)
        message(FATAL_ERROR "${program}.cpp does not hold ${mark} twice")
    endif()
    math(EXPR begin "${begin} + ${length}")
    math(EXPR length "${end} - ${begin}")
    string(SUBSTRING "${source}" ${begin} ${length} lines)
    string(REGEX REPLACE " +$" "" lines "${lines}") # what stands before the second mark
    if(lines MATCHES "^ +")
        string(REPLACE "\n${CMAKE_MATCH_0}" "\n" lines "\n${lines}")
        string(SUBSTRING "${lines}" 1 -1 lines)
    endif()
    set(${variable} "${lines}" PARENT_SCOPE)
endfunction()

# output_of(VARIABLE PROGRAM [ARGUMENT...])
function(output_of variable program)
    execute_process(COMMAND ${WORK_DIR}/${program} ${ARGN}
        WORKING_DIRECTORY ${SOURCE_DIR}/examples/packages
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    expect_same("The exit code of ${program}" "${result}" 0)
    expect_same("The error output of ${program}" "${errors}" "")
    set(${variable} "${output}" PARENT_SCOPE)
endfunction()

# expect_count(DOCUMENT PATTERN COUNT): how often something stands in a document.
function(expect_count document pattern expected)
    file(STRINGS ${SOURCE_DIR}/${document} lines REGEX "${pattern}")
    list(LENGTH lines count)
    expect_same("The number of lines \"${pattern}\" in ${document}" ${count} ${expected})
endfunction()

set(shown "")
foreach(document docs/guide.md docs/reference.md README.md)
    file(READ ${SOURCE_DIR}/${document} text)
    string(REGEX MATCHALL "<!-- [a-z_]+\\.cpp [^>]* -->" marks "${text}")
    set(quotes 0)
    set(outputs 0)
    foreach(mark IN LISTS marks)
        if(mark MATCHES "^<!-- ([a-z_]+)\\.cpp \\[([a-z]+)\\] -->$")
            list(APPEND shown "${CMAKE_MATCH_1} ${CMAKE_MATCH_2}")
            marked_lines(expected ${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
            code_block(block "${text}" "${mark}\n```cpp")
            math(EXPR quotes "${quotes} + 1")
        elseif(mark MATCHES "^<!-- ([a-z_]+)\\.cpp (.*)prints -->$")
            list(APPEND shown "${CMAKE_MATCH_1} prints")
            separate_arguments(arguments UNIX_COMMAND "${CMAKE_MATCH_2}")
            output_of(expected ${CMAKE_MATCH_1} ${arguments})
            code_block(block "${text}" "${mark}\n```text")
            math(EXPR outputs "${outputs} + 1")
        else()
            message(FATAL_ERROR "${document} quotes in an unknown way: ${mark}")
        endif()
        expect_same("${document}: ${mark}" "${block}" "${expected}")
    endforeach()
    # No code that nobody compiles, no output that nobody has seen.
    expect_count(${document} "^```cpp" ${quotes})
    expect_count(${document} "^```text" ${outputs})
endforeach()

# What the programs do and mark, the documents show.
file(GLOB programs RELATIVE ${SOURCE_DIR}/examples/guide ${SOURCE_DIR}/examples/guide/*.cpp)
foreach(program IN LISTS programs)
    file(STRINGS ${SOURCE_DIR}/examples/guide/${program} marks REGEX "//! \\[")
    string(REPLACE ".cpp" "" program ${program})
    list(TRANSFORM marks REPLACE " *//! \\[(.*)\\]" "${program} \\1")
    foreach(expected IN LISTS marks ITEMS "${program} prints")
        if(NOT expected IN_LIST shown)
            message(FATAL_ERROR "No document shows: ${expected}")
        endif()
    endforeach()
endforeach()

# The picture shows what merging gives: three names in each row.
output_of(merging merging)
file(READ ${SOURCE_DIR}/docs/merging.svg picture)
string(REPLACE "&amp;" "&" picture "${picture}")
string(REGEX MATCHALL "class=\"name\"[^>]*>[^<]*<" names "${picture}")
list(TRANSFORM names REPLACE ".*>(.*)<" "\\1")
list(LENGTH names count)
expect_same("The number of names in the picture" ${count} 12)
while(names)
    list(POP_FRONT names plan changes merged)
    string(FIND "${merging}" ": ${plan} + ${changes} = ${merged}\n" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "Merging does not give the row ${plan}, ${changes}, ${merged}")
    endif()
endwhile()
