# What the scripts of the tests share.

cmake_minimum_required(VERSION 3.25)

# run(COMMAND...): runs a command, which must succeed.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result
        OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${result}:\n${output}")
    endif()
endfunction()

# output_of(VARIABLE COMMAND...): the output of a command.
function(output_of variable)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    set(${variable} "${output}" PARENT_SCOPE)
endfunction()

# expect_same(WHAT ACTUAL EXPECTED): compares two texts.
function(expect_same what actual expected)
    if(NOT actual STREQUAL expected)
        message("---- expected\n${expected}\n---- actual\n${actual}\n----")
        message(FATAL_ERROR "${what} is not as expected.")
    endif()
endfunction()

# code_block(VARIABLE TEXT LINE...): the content of a code block in a document: from behind the last
# LINE, each one looked for behind the one before, to the end of the block.
function(code_block variable text)
    foreach(line IN LISTS ARGN)
        string(FIND "${text}" "${line}\n" begin)
        if(begin EQUAL -1)
            message(FATAL_ERROR "There is no line ${line}")
        endif()
        string(LENGTH "${line}\n" length)
        math(EXPR begin "${begin} + ${length}")
        string(SUBSTRING "${text}" ${begin} -1 text)
    endforeach()
    string(FIND "${text}" "```" end)
    string(SUBSTRING "${text}" 0 ${end} text)
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# dead_links(VARIABLE DOCUMENT...): the links of Markdown documents to files that do not exist.
function(dead_links variable)
    set(dead "")
    foreach(document IN LISTS ARGN)
        file(READ ${document} text)
        get_filename_component(folder ${document} DIRECTORY)
        string(REGEX REPLACE "[][;]+\\(" "<link>" text "${text}") # brackets would keep lists together
        string(REGEX MATCHALL "<link>[^)# ]+[)#]" links "${text}") # code may look alike, but has blanks
        foreach(link IN LISTS links)
            string(REGEX REPLACE "<link>(.*)." "\\1" link "${link}")
            if(NOT link MATCHES "^https?:" AND NOT EXISTS ${folder}/${link})
                list(APPEND dead "${document}: ${link}")
            endif()
        endforeach()
    endforeach()
    set(${variable} "${dead}" PARENT_SCOPE)
endfunction()

# build_example(NAME): builds a folder of examples as its readers will: against the installed library.
function(build_example name)
    file(REMOVE_RECURSE ${WORK_DIR})
    run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/${name} -B ${WORK_DIR} -G ${GENERATOR}
        -D CMAKE_CXX_COMPILER=${CXX}
        -D CMAKE_BUILD_TYPE=${CONFIG}
        -D CMAKE_PREFIX_PATH=${PREFIX}
        -D CMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
        "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror${INSTRUMENTATION}")
    file(STRINGS ${WORK_DIR}/CMakeCache.txt found REGEX "^qenxml_DIR:")
    if(NOT found MATCHES "=${PREFIX}/")
        message(FATAL_ERROR "The example has found another library: ${found}")
    endif()
    run(${CMAKE_COMMAND} --build ${WORK_DIR} --config "${CONFIG}")
endfunction()

# expect_host_output(PROGRAM): runs the example host with good, overlapping, broken and missing
# packages. It runs in the folder of the packages, so that its messages do not depend on where the
# sources are.
function(expect_host_output program)
    execute_process(
        COMMAND ${program}
            3ce1268c-9c80-42e3-bfec-3fee8ed2305d.xml
            f08db22f-d293-456a-b170-fab23d90fbac.xml
            broken/rec-id/5ee118ce-09bf-4cfe-ad36-a8f803f97869.xml
            00112233-4455-6677-8899-aabbccddeeff.xml
            a.xml
            f3faa8e8-79ea-4723-8ad5-cfbc1d74bd1c.xml
        WORKING_DIRECTORY ${SOURCE_DIR}/examples/packages
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    file(READ ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/host.output.txt expected_output)
    file(READ ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/host.errors.txt expected_errors)
    expect_same("The output of the example host" "${output}" "${expected_output}")
    expect_same("The error output of the example host" "${errors}" "${expected_errors}")
    expect_same("The exit code of the example host" "${result}" 1)
endfunction()
