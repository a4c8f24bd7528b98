# The exported symbols are the interface that hosts are linked against. exported_symbols.txt lists
# the public operations and type information; all of them must be there, in the version node that the
# list says, and nothing else, private members of the public classes included. Members that compilers
# add are inline, so they are not exported.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

if(NOT SHARED)
    message("Skipped: a static library exports nothing")
    return()
elseif(INSTRUMENTATION)
    message("Skipped: instrumentation adds symbols of its own")
    return()
endif()

# Symbols as C++ writes them, without what the standard library makes of its own names. By GNU nm:
# the tools of clang, which CMake may have chosen, do not demangle a symbol with a version.
output_of(symbols nm -D --defined-only -C ${LIBRARY})
string(REPLACE "[abi:cxx11]" "" symbols "${symbols}")
string(REPLACE "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
    "std::string" symbols "${symbols}")
string(REGEX REPLACE "std::vector<([A-Za-z]+), std::allocator<[A-Za-z]+> >"
    "std::vector<\\1>" symbols "${symbols}")
string(REGEX REPLACE "(^|\n)[0-9a-f]+ [A-Za-z] " "\\1" symbols "${symbols}")
string(STRIP "${symbols}" symbols)
string(REPLACE "\n" ";" symbols "${symbols}")
list(REMOVE_DUPLICATES symbols) # a constructor for the whole object and one for a base look the same
list(FILTER symbols EXCLUDE REGEX "^QENXML_1(\\.[1-9][0-9]*)?$") # the nodes themselves

file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/exported_symbols.txt expected REGEX "^[^#]")
list(TRANSFORM expected REPLACE "^([^@]+)$" "\\1@@QENXML_1")
set(missing ${expected})
list(REMOVE_ITEM missing ${symbols})
list(TRANSFORM missing PREPEND "missing: ")
set(foreign ${symbols})
list(REMOVE_ITEM foreign ${expected})
list(TRANSFORM foreign PREPEND "foreign: ")
list(APPEND missing ${foreign})
list(JOIN missing "\n" differences)
expect_same("What exported_symbols.txt and the library do not share" "${differences}" "")

output_of(headers objdump -p ${LIBRARY})
string(REGEX MATCH "SONAME +([^\n]+)" soname "${headers}")
expect_same("The name that hosts are linked against" "${CMAKE_MATCH_1}" "libqenxml.so.1")
