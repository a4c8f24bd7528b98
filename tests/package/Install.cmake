# Installs each component and lists what comes with it.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

# install(COMPONENT): installs it and gives the list of its files, relative to the prefix, with
# "LIB" for the folder of libraries.
function(install_component component)
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX} --component ${component}
        --config "${CONFIG}")
    file(STRINGS ${BUILD_DIR}/install_manifest_${component}.txt files)
    list(TRANSFORM files REPLACE "^${PREFIX}/" "")
    list(TRANSFORM files REPLACE "^${LIBDIR}/" "LIB/")
    list(SORT files)
    list(JOIN files "\n" files)
    set(installed "${files}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${PREFIX})

set(library "LIB/libqenxml.so.1\nLIB/libqenxml.so.${VERSION}")
set(link_library LIB/libqenxml.so)
if(NOT SHARED)
    set(library "")
    set(link_library LIB/libqenxml.a)
endif()
install_component(Runtime)
expect_same("The component Runtime" "${installed}" "${library}")

install_component(Development)
string(REGEX REPLACE "qenxmlTargets-[a-z]+\\.cmake" "qenxmlTargets-CONFIG.cmake"
    installed "${installed}")
expect_same("The component Development" "${installed}" "LIB/cmake/qenxml/qenxmlConfig.cmake
LIB/cmake/qenxml/qenxmlConfigVersion.cmake
LIB/cmake/qenxml/qenxmlTargets-CONFIG.cmake
LIB/cmake/qenxml/qenxmlTargets.cmake
${link_library}
LIB/pkgconfig/qenxml.pc
include/qenxml/model/CommercialFertilizerRec.h
include/qenxml/model/CustomFertilizerRec.h
include/qenxml/model/OwnedRecData.h
include/qenxml/model/PestProduct.h
include/qenxml/model/PesticideByAmount.h
include/qenxml/model/PesticideByPercent.h
include/qenxml/model/PesticideRec.h
include/qenxml/model/PlantingRec.h
include/qenxml/model/QenExport.h
include/qenxml/model/QenFarm.h
include/qenxml/model/QenField.h
include/qenxml/model/QenFieldGeometry.h
include/qenxml/model/QenGrower.h
include/qenxml/model/QenRec.h
include/qenxml/model/QenRecData.h
include/qenxml/model/version.h
include/qenxml/parser/QenXmlParser.h
include/qenxml/parser/TagNames.h")

# The command runs wherever its prefix is.
if(COMMAND)
    install_component(Tools)
    string(REGEX MATCHALL "(LIB|bin|include)/[^\n]*" programs "${installed}")
    expect_same("The programs of the component Tools" "${programs}" "bin/qenxml")
    set(moved ${PREFIX}.moved)
    file(REMOVE_RECURSE ${moved})
    file(COPY ${PREFIX}/ DESTINATION ${moved})
    execute_process(COMMAND ${moved}/bin/qenxml --version
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output MATCHES "${VERSION}")
        message(FATAL_ERROR "qenxml --version says ${output}")
    endif()
endif()
