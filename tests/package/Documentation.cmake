# Installs the documentation and follows its links.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR} --component Documentation
    --config "${CONFIG}")

set(root ${WORK_DIR}/share/doc/qenxml)
set(kinds docs/*.md docs/*.svg docs/*.xsd docs/*.json docs/man/*.1)
list(TRANSFORM kinds PREPEND ${SOURCE_DIR}/ OUTPUT_VARIABLE sources)
list(TRANSFORM kinds PREPEND ${root}/ OUTPUT_VARIABLE targets)
file(GLOB documents RELATIVE ${SOURCE_DIR} ${sources})
file(GLOB installed RELATIVE ${root} ${targets})
list(SORT documents)
list(SORT installed)
expect_same("The list of installed documents" "${installed}" "${documents}")

file(GLOB_RECURSE documents ${root}/*.md)
dead_links(dead ${documents})
expect_same("The list of dead links" "${dead}" "")
