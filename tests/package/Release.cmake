# A release is the same, byte by byte, whoever makes it: here from two checkouts, in other time zones,
# with other permissions.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

find_program(git git)
if(NOT git OR NOT EXISTS ${SOURCE_DIR}/.git)
    message("Skipped: needs git and its history")
    return()
endif()
# The checkout may belong to somebody else.
set(ENV{GIT_CONFIG_COUNT} 1)
set(ENV{GIT_CONFIG_KEY_0} safe.directory)
set(ENV{GIT_CONFIG_VALUE_0} *)

file(REMOVE_RECURSE ${WORK_DIR})
run(${git} clone -q ${SOURCE_DIR} ${WORK_DIR}/clone)
run(${CMAKE_COMMAND} -E env TZ=UTC bash -c "umask 022 && $0 $@"
    ${SOURCE_DIR}/scripts/release --preview ${WORK_DIR}/here)
run(${CMAKE_COMMAND} -E env TZ=Pacific/Kiritimati bash -c "umask 077 && $0 $@"
    ${WORK_DIR}/clone/scripts/release --preview ${WORK_DIR}/there)
foreach(file qenxml-${VERSION}.tar.xz qenxml-${VERSION}.cdx.json SHA256SUMS)
    run(${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/here/${file} ${WORK_DIR}/there/${file})
endforeach()
run(${CMAKE_COMMAND} -E chdir ${WORK_DIR}/here sha256sum --check --strict SHA256SUMS)

# The archive unpacks into one folder, which holds what a build needs.
run(${CMAKE_COMMAND} -E chdir ${WORK_DIR} ${CMAKE_COMMAND} -E tar xf
    here/qenxml-${VERSION}.tar.xz)
foreach(file CMakeLists.txt debian/rules model/version.h scripts/test)
    if(NOT EXISTS ${WORK_DIR}/qenxml-${VERSION}/${file})
        message(FATAL_ERROR "The archive lacks ${file}")
    endif()
endforeach()
