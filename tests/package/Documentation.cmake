# Installs the documentation and follows its links.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR} --component Documentation
    --config "${CONFIG}")

set(root ${WORK_DIR}/share/doc/qenxml)
file(GLOB documents RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/docs/*.md ${SOURCE_DIR}/docs/*.svg
    ${SOURCE_DIR}/docs/*.xsd)
file(GLOB installed RELATIVE ${root} ${root}/docs/*.md ${root}/docs/*.svg ${root}/docs/*.xsd)
list(SORT documents)
list(SORT installed)
expect_same("The list of installed documents" "${installed}" "${documents}")

file(GLOB_RECURSE documents ${root}/*.md)
dead_links(dead ${documents})
expect_same("The list of dead links" "${dead}" "")
