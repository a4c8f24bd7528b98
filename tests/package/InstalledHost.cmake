# Builds and runs the example host as its readers will: against the installed library.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/host -B ${WORK_DIR} -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${CXX}
    -D CMAKE_BUILD_TYPE=${CONFIG}
    -D CMAKE_PREFIX_PATH=${PREFIX}
    -D CMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror${INSTRUMENTATION}")
file(STRINGS ${WORK_DIR}/CMakeCache.txt found REGEX "^qenxml_DIR:")
if(NOT found MATCHES "=${PREFIX}/")
    message(FATAL_ERROR "The host has found another library: ${found}")
endif()
run(${CMAKE_COMMAND} --build ${WORK_DIR} --config "${CONFIG}")
expect_host_output(${WORK_DIR}/host)
