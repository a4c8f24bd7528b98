# qenxml_developer_flags: warnings and instrumentation for the project's own targets. Consumers
# never get any of it.

set(QENXML_SANITIZERS "" CACHE STRING "Sanitizers to build with, for example address,undefined")
option(QENXML_COVERAGE "Count the executed lines and branches" OFF)

add_library(qenxml_developer_flags INTERFACE)
target_compile_features(qenxml_developer_flags INTERFACE cxx_std_17)
if(QENXML_DEVELOPER OR QENXML_BENCHMARKS)
    target_compile_options(qenxml_developer_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
        $<$<BOOL:${QENXML_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(QENXML_SANITIZERS)
    target_compile_options(qenxml_developer_flags INTERFACE
        -fsanitize=${QENXML_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(qenxml_developer_flags INTERFACE -fsanitize=${QENXML_SANITIZERS})
endif()
if(QENXML_COVERAGE)
    target_compile_options(qenxml_developer_flags INTERFACE --coverage)
    target_link_options(qenxml_developer_flags INTERFACE --coverage)
endif()
