# Builds and runs the example host as its readers will: against the installed library.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

build_example(host)
expect_host_output(${WORK_DIR}/host)
