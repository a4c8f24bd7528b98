# The library and the command carry the protections that cmake/Hardening.cmake asks for.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

if(INSTRUMENTATION)
    message("Skipped: instrumentation takes the place of the protections")
    return()
endif()

# expect_match(WHAT TEXT REGEX)
function(expect_match what text regex)
    if(NOT text MATCHES "${regex}")
        message(FATAL_ERROR "${what}: \"${regex}\" is not in\n${text}")
    endif()
endfunction()

# expect_fixed_search_path(BINARY): the loader looks for libraries where nobody else can put one: an
# element that is empty or relative is the current folder or one below it.
function(expect_fixed_search_path binary)
    output_of(dynamic readelf -dW ${binary})
    string(REGEX MATCHALL "\\((RPATH|RUNPATH)\\)[^[]*\\[[^]]*" paths "${dynamic}")
    foreach(path IN LISTS paths)
        string(REGEX REPLACE "^[^[]*\\[" "" path "${path}")
        if(NOT ":${path}" MATCHES "^(:(/|\\$ORIGIN(/|:|$))[^:]*)+$")
            message(FATAL_ERROR "${binary} looks for libraries in the current folder: \"${path}\"")
        endif()
    endforeach()
endfunction()

# expect_fixed_search_paths(FOLDER): so do all programs and libraries in a folder, but those that
# other tests are building.
function(expect_fixed_search_paths folder)
    file(GLOB_RECURSE files LIST_DIRECTORIES OFF ${folder}/*)
    list(FILTER files EXCLUDE REGEX "/CMakeFiles/|^${folder}/tests/package/[^/]+/")
    set(count 0)
    foreach(file IN LISTS files)
        file(READ ${file} magic LIMIT 4 HEX)
        if(magic STREQUAL "7f454c46")
            expect_fixed_search_path(${file})
            math(EXPR count "${count} + 1")
        endif()
    endforeach()
    if(count EQUAL 0)
        message(FATAL_ERROR "There is no program or library in ${folder}")
    endif()
endfunction()

# expect_protected(BINARY): the stack is guarded, and the loader's tables are read-only once it has
# done its work, which it does at once.
function(expect_protected binary)
    output_of(symbols nm -D --undefined-only ${binary})
    expect_match("The stack of ${binary} is guarded" "${symbols}" "__stack_chk_fail")
    output_of(segments readelf -lW ${binary})
    expect_match("The tables of ${binary} are read-only" "${segments}" "GNU_RELRO")
    expect_match("The stack of ${binary} is not executable" "${segments}" "GNU_STACK[^\n]* RW ")
    output_of(dynamic readelf -dW ${binary})
    expect_match("${binary} is bound at once" "${dynamic}" "BIND_NOW|Flags: [A-Z ]*NOW")
endfunction()

# expect_landing_pads(BINARY SYMBOL): the function begins with one, where the processor has them.
function(expect_landing_pads binary symbol)
    if(PROCESSOR MATCHES "^(x86_64|AMD64|amd64)$")
        output_of(code objdump -d --no-show-raw-insn --disassemble=${symbol} ${binary})
        expect_match("Calls of ${symbol} land" "${code}" "<${symbol}(@@[A-Z0-9_]+)?>:\n[^\n]*endbr64")
    elseif(PROCESSOR MATCHES "^(aarch64|arm64)$")
        output_of(code objdump -d --no-show-raw-insn --disassemble=${symbol} ${binary})
        expect_match("Calls of ${symbol} land" "${code}"
            "<${symbol}(@@[A-Z0-9_]+)?>:\n[^\n]*(bti|paciasp)")
    endif()
endfunction()

if(SHARED)
    expect_protected(${LIBRARY})
    expect_landing_pads(${LIBRARY} _ZN12QenXmlParserC1Ev)
endif()

# expect_program(BINARY): the same, and it is loaded anywhere.
function(expect_program binary)
    expect_protected(${binary})
    expect_landing_pads(${binary} main)
    output_of(header readelf -hW ${binary})
    expect_match("${binary} is position-independent" "${header}" "Type: +DYN")
    output_of(dynamic readelf -dW ${binary})
    expect_match("${binary} is a program" "${dynamic}" "PIE")
endfunction()

if(COMMAND)
    expect_program(${COMMAND})
    expect_program(${PREFIX}/bin/qenxml)
endif()

file(REMOVE_RECURSE ${WORK_DIR})
expect_fixed_search_paths(${BUILD_DIR})
if(SHARED OR COMMAND)
    # Copied, since other tests use the prefix at the same time.
    file(COPY ${PREFIX}/ DESTINATION ${WORK_DIR}/installed)
    expect_fixed_search_paths(${WORK_DIR}/installed)
endif()

# So does a library that is linked with a pugixml which is not the system's.
output_of(pugixml ${CXX} -print-file-name=libpugixml.so)
string(STRIP "${pugixml}" pugixml)
file(COPY ${pugixml} DESTINATION ${WORK_DIR}/elsewhere FOLLOW_SYMLINK_CHAIN)
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/subdirectory_host -B ${WORK_DIR}/other_pugixml
    -G ${GENERATOR} -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_BUILD_TYPE=Debug
    -D CMAKE_UNITY_BUILD=ON -D BUILD_SHARED_LIBS=ON -D QENXML_SOURCE=${SOURCE_DIR}
    -D PUGIXML_LIBRARY=${WORK_DIR}/elsewhere/libpugixml.so)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/other_pugixml)
expect_fixed_search_paths(${WORK_DIR}/other_pugixml)

# build_optimised(NAME OPTION...): the program of hardened_program, in a folder of that name. Calls of
# the C library are checked in optimised builds only.
function(build_optimised name)
    run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/hardened_program -B ${WORK_DIR}/${name}
        -G ${GENERATOR} -D CMAKE_BUILD_TYPE=Release -D QENXML_SOURCE=${SOURCE_DIR} ${ARGN})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/${name})
endfunction()
build_optimised(optimised -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_CXX_FLAGS=-DFORTIFIED=2)
set(program ${WORK_DIR}/optimised/hardened_program)
expect_program(${program})
output_of(symbols nm -D --undefined-only ${program})
expect_match("Calls of the C library are checked" "${symbols}" "__strcpy_chk")
if(PROCESSOR MATCHES "^(x86_64|AMD64|amd64)$")
    output_of(code objdump -d --no-show-raw-insn --disassemble=_Z5firstPKc ${program})
    expect_match("Each page of the stack is touched" "${code}" "sub +\\$0x1000,%rsp")
endif()

# A compiler that checks more by itself goes on doing so.
set(compiler ${WORK_DIR}/fortifying-compiler)
file(WRITE ${compiler} "#!/bin/sh\nexec ${CXX} -D_FORTIFY_SOURCE=3 \"$@\"\n")
file(CHMOD ${compiler} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
build_optimised(fortified -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_FLAGS=-DFORTIFIED=3)
