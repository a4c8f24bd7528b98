# A program and a library that are compiled in different modes of the standard library or of pugixml
# do not link, and the message says in what they differ. In the same mode they work together. (pugixml
# itself is there in its usual mode only: what needs another one is linked, not run.)

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

if(NOT SHARED)
    message("Skipped: the same with a static library")
    return()
elseif(INSTRUMENTATION)
    message("Skipped: the same with instrumentation")
    return()
endif()

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
file(GLOB sources ${SOURCE_DIR}/model/*.cpp ${SOURCE_DIR}/parser/*.cpp)
list(TRANSFORM sources REPLACE "(.+)" "#include \"\\1\"\n")
file(WRITE ${WORK_DIR}/library.cpp ${sources}) # together, which takes a quarter of the time
set(compiler ${CXX} -std=c++17 -I ${SOURCE_DIR})

# A program that gets by without any text.
file(WRITE ${WORK_DIR}/program.cpp [[
#include "parser/QenXmlParser.h"
int main() { return QenXmlParser().getGrowers().empty() ? 0 : 1; }
]])

# As distributions do: what no function uses is left out.
set(linking -O2 -ffunction-sections -fdata-sections -Wl,--gc-sections)

# build_library(NAME FLAG...): as a host does that builds it by itself.
function(build_library name)
    run(${compiler} ${ARGN} -fPIC -shared -o ${WORK_DIR}/${name} ${WORK_DIR}/library.cpp
        -Wl,-soname,${name} -Wl,--version-script=${SOURCE_DIR}/libqenxml.map -Wl,--no-undefined -lpugixml)
endfunction()

# expect_refusal(LIBRARY SENTENCE FLAG...): the program, compiled with these, does not go with it.
function(expect_refusal library sentence)
    execute_process(
        COMMAND ${compiler} ${ARGN} ${linking} -o ${WORK_DIR}/refused ${WORK_DIR}/program.cpp
            ${library} -lpugixml
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    string(REPLACE "_" " " words "${output}")
    if(result EQUAL 0 OR NOT words MATCHES "${sentence}")
        message(FATAL_ERROR "\"${sentence}\" is not said about ${library} and ${ARGN}:\n${output}")
    endif()
endfunction()

# expect_use(LIBRARY FLAG...): the example host, compiled with these, works with it.
function(expect_use library)
    run(${compiler} ${ARGN} ${linking} -o ${WORK_DIR}/host ${SOURCE_DIR}/examples/host/main.cpp
        ${library} -lpugixml -Wl,-rpath,${WORK_DIR})
    expect_host_output(${WORK_DIR}/host)
endfunction()

set(debug "GLIBCXX DEBUG and its libqenxml")
expect_refusal(${LIBRARY} "program is compiled with ${debug} without" -D_GLIBCXX_DEBUG)
build_library(libdebug.so -D_GLIBCXX_DEBUG)
expect_refusal(${WORK_DIR}/libdebug.so "program is compiled without ${debug} with")
expect_use(${WORK_DIR}/libdebug.so -D_GLIBCXX_DEBUG)

set(strings "program is compiled with GLIBCXX USE CXX11 ABI")
set(old_strings -D_GLIBCXX_USE_CXX11_ABI=0)
expect_refusal(${LIBRARY} "${strings} 0 and its libqenxml with 1" ${old_strings})
build_library(libstrings.so ${old_strings})
expect_refusal(${WORK_DIR}/libstrings.so "${strings} 1 and its libqenxml with 0")
expect_use(${WORK_DIR}/libstrings.so ${old_strings})

set(compact "PUGIXML COMPACT and its libqenxml")
expect_refusal(${LIBRARY} "program is compiled with ${compact} without" -DPUGIXML_COMPACT)
build_library(libcompact.so -DPUGIXML_COMPACT)
expect_refusal(${WORK_DIR}/libcompact.so "program is compiled without ${compact} with")

expect_refusal(${LIBRARY} "program is compiled with PUGIXML WCHAR MODE; libqenxml" -DPUGIXML_WCHAR_MODE)

# One object file in another mode than the rest is enough.
run(${compiler} -D_GLIBCXX_DEBUG -c -o ${WORK_DIR}/other.o ${WORK_DIR}/program.cpp -Dmain=other)
expect_refusal(${LIBRARY} "program is compiled with ${debug} without" ${WORK_DIR}/other.o)
