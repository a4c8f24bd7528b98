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

# output_of(VARIABLE COMMAND...): the output of a command.
function(output_of variable)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    set(${variable} "${output}" PARENT_SCOPE)
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
endif()

# Calls of the C library are checked in optimised builds.
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/hardened_program -B ${WORK_DIR} -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_BUILD_TYPE=Release -D QENXML_SOURCE=${SOURCE_DIR})
run(${CMAKE_COMMAND} --build ${WORK_DIR})
expect_program(${WORK_DIR}/hardened_program)
output_of(symbols nm -D --undefined-only ${WORK_DIR}/hardened_program)
expect_match("Calls of the C library are checked" "${symbols}" "__strcpy_chk")
