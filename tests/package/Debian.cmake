# The Debian packages are built with what the other scripts install, and carry the library's version;
# that of the command brings the documents that its manual pages name.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(READ ${SOURCE_DIR}/debian/control control)
string(REGEX MATCH "Build-Depends: ([^:]*)\nBuild-Depends-Indep" _ "${control}")
string(REGEX REPLACE " \\([^)]*\\)" "" build_depends "${CMAKE_MATCH_1}")
string(REGEX MATCHALL "[a-z0-9.+-]+" build_depends "${build_depends}")
list(REMOVE_ITEM build_depends debhelper-compat)
list(SORT build_depends)

execute_process(COMMAND bash -c "set -eu; . scripts/packages.sh; echo $packages_run"
    WORKING_DIRECTORY ${SOURCE_DIR} OUTPUT_VARIABLE packages
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(packages)
list(REMOVE_ITEM packages g++) # Debian's own builds always have it
list(SORT packages)
expect_same("Build-Depends" "${build_depends}" "${packages}")

file(STRINGS ${SOURCE_DIR}/debian/changelog changelog LIMIT_COUNT 1)
string(REGEX MATCH "\\(([0-9.]+)\\)" _ "${changelog}")
expect_same("The version in debian/changelog" "${CMAKE_MATCH_1}" "${VERSION}")

file(STRINGS ${SOURCE_DIR}/debian/qenxml-tools.install lines REGEX "^docs/")
list(TRANSFORM lines REPLACE "^([^ ]+) usr/share/doc/qenxml-tools/docs$" "${SOURCE_DIR}/\\1")
file(GLOB brought RELATIVE ${SOURCE_DIR} ${lines})
file(GLOB pages ${SOURCE_DIR}/docs/man/*.1)
set(named "")
foreach(page IN LISTS pages)
    file(STRINGS ${page} documents REGEX "^\\.Pa docs/[a-z]")
    list(TRANSFORM documents REPLACE "^\\.Pa (docs/[a-z.-]+[a-z]).*" "\\1")
    list(APPEND named ${documents})
endforeach()
if(NOT named)
    message(FATAL_ERROR "The manual pages name no document")
endif()
list(REMOVE_ITEM named ${brought})
expect_same("The list of documents that the manual pages name and nobody brings" "${named}" "")
