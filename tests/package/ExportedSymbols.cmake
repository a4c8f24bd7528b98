# The exported symbols are the interface that hosts are linked against. exported_symbols.txt lists
# the public operations and type information; all of them must be there, under the version of the
# library, and nothing else, private members of the public classes included.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

if(NOT SHARED)
    message("Skipped: a static library exports nothing")
    return()
elseif(INSTRUMENTATION)
    message("Skipped: instrumentation adds symbols of its own")
    return()
endif()

# run_tool(VARIABLE COMMAND...): the output of a command.
function(run_tool variable)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    set(${variable} "${output}" PARENT_SCOPE)
endfunction()

# Symbols as C++ writes them, without what the standard library makes of its own names. By GNU nm:
# the tools of clang, which CMake may have chosen, do not demangle a symbol with a version.
run_tool(symbols nm -D --defined-only -C ${LIBRARY})
string(REPLACE "[abi:cxx11]" "" symbols "${symbols}")
string(REPLACE "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
    "std::string" symbols "${symbols}")
string(REGEX REPLACE "std::vector<([A-Za-z]+), std::allocator<[A-Za-z]+> >"
    "std::vector<\\1>" symbols "${symbols}")
string(REGEX REPLACE "(^|\n)[0-9a-f]+ [A-Za-z] " "\\1" symbols "${symbols}")
string(STRIP "${symbols}" symbols)
string(REPLACE "\n" ";" symbols "${symbols}")
list(REMOVE_ITEM symbols QENXML_1)

file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/exported_symbols.txt expected)
set(classes ${expected})
list(FILTER classes INCLUDE REGEX "^[A-Za-z]+::")
list(TRANSFORM classes REPLACE "::.*" "::")
list(REMOVE_DUPLICATES classes)
list(JOIN classes "|" classes)

set(missing ${expected})
set(foreign "")
foreach(symbol IN LISTS symbols)
    if(NOT symbol MATCHES "^(.*)@@QENXML_1$")
        list(APPEND foreign "${symbol}")
        continue()
    endif()
    set(symbol "${CMAKE_MATCH_1}")
    if(symbol IN_LIST expected)
        list(REMOVE_ITEM missing "${symbol}")
    elseif(NOT symbol MATCHES "^(${classes})(~?[A-Z][A-Za-z]+|operator=)\\(")
        # What compilers add: constructors, destructors and assignment that nobody wrote.
        list(APPEND foreign "${symbol}")
    endif()
endforeach()
expect_same("The list of missing symbols" "${missing}" "")
expect_same("The list of foreign symbols" "${foreign}" "")

run_tool(headers objdump -p ${LIBRARY})
string(REGEX MATCH "SONAME +([^\n]+)" soname "${headers}")
expect_same("The name that hosts are linked against" "${CMAKE_MATCH_1}" "libqenxml.so.1")
