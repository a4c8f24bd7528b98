# The README shows a program and the output of scripts/run; both have to be true.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(READ ${SOURCE_DIR}/README.md readme)

code_block(program "${readme}" "```cpp")
file(GLOB sources ${SOURCE_DIR}/model/*.cpp ${SOURCE_DIR}/parser/*.cpp)
file(MAKE_DIRECTORY ${WORK_DIR})
file(WRITE ${WORK_DIR}/readme.cpp "${program}")
run(${CXX} -std=c++17 -Wall -Werror -I ${SOURCE_DIR} -o ${WORK_DIR}/readme
    ${WORK_DIR}/readme.cpp ${sources} -lpugixml)
execute_process(COMMAND ${WORK_DIR}/readme 32833106-536e-45df-80b2-d002cc92d33d.xml
    WORKING_DIRECTORY ${SOURCE_DIR}/examples/packages
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
code_block(expected "${readme}" "```text")
expect_same("The output of the program in the README" "${output}" "${expected}")

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
endif()
