# The version has one home, and a build that is there already takes a new one over.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
set(source ${WORK_DIR}/source)
set(build ${WORK_DIR}/build)
file(COPY ${SOURCE_DIR}/CMakeLists.txt ${SOURCE_DIR}/cmake ${SOURCE_DIR}/docs
    ${SOURCE_DIR}/examples ${SOURCE_DIR}/libqenxml.map ${SOURCE_DIR}/model ${SOURCE_DIR}/parser
    DESTINATION ${source})
set(configure ${CMAKE_COMMAND} -S ${source} -B ${build} -G Ninja -D CMAKE_CXX_COMPILER=${CXX}
    -D QENXML_BUILD_TOOLS=OFF -D CMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
run(${configure})

# change(FROM TO): in the header of the version.
set(header ${source}/model/version.h)
function(change from to)
    file(READ ${header} text)
    string(REPLACE "${from}" "${to}" changed "${text}")
    if(changed STREQUAL text)
        message(FATAL_ERROR "There is no \"${from}\" in ${header}")
    endif()
    file(WRITE ${header} "${changed}")
endfunction()

string(REPLACE "." ";" numbers ${VERSION})
list(GET numbers 0 major)
list(GET numbers 1 minor)
list(GET numbers 2 patch)
change("QENXML_VERSION_MINOR ${minor} " "QENXML_VERSION_MINOR 777 ")
change("\"${VERSION}\"" "\"${major}.777.${patch}\"")
run(${CMAKE_COMMAND} --build ${build} --target build.ninja)
file(STRINGS ${build}/qenxml.pc line REGEX "^Version: ")
if(NOT line STREQUAL "Version: ${major}.777.${patch}")
    message(FATAL_ERROR "The build has not taken the new version over: ${line}")
endif()

change("QENXML_VERSION_MINOR 777 " "QENXML_VERSION_MINOR 778 ")
execute_process(COMMAND ${configure} RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
if(result EQUAL 0 OR NOT errors MATCHES "778")
    message(FATAL_ERROR "A version that is not the same in numbers and as text passes: ${errors}")
endif()
