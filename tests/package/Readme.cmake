# The README shows the output of scripts/run, which has to be true.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(READ ${SOURCE_DIR}/README.md readme)

if(EXISTS "${COMMAND}")
    code_block(expected "${readme}" "$ scripts/run")
    file(GLOB packages RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/examples/packages/*.xml)
    list(SORT packages)
    execute_process(COMMAND ${COMMAND} show ${packages} WORKING_DIRECTORY ${SOURCE_DIR}
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    # The README shows the beginning; "..." stands for the rest.
    string(REGEX REPLACE "\\.\\.\\.\n$" "" beginning "${expected}")
    string(LENGTH "${beginning}" length)
    string(SUBSTRING "${output}" 0 ${length} output)
    expect_same("The output of scripts/run in the README" "${output}" "${beginning}")

    set(sample examples/packages/broken/number-cut-off)
    code_block(expected "${readme}" "$ build/release/tools/qenxml check ${sample}")
    execute_process(COMMAND ${COMMAND} check ${sample} WORKING_DIRECTORY ${SOURCE_DIR}
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    expect_same("The output of qenxml check in the README" "${output}" "${expected}")
endif()
