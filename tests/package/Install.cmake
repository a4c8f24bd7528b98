# Installs the library and lists the headers that come with it.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(REMOVE_RECURSE ${PREFIX})
foreach(component Runtime Development)
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX} --component ${component}
        --config "${CONFIG}")
endforeach()

file(GLOB_RECURSE headers RELATIVE ${PREFIX}/include/qenxml ${PREFIX}/include/*)
list(SORT headers)
list(JOIN headers "\n" headers)
expect_same("The list of installed headers" "${headers}" [[
model/CommercialFertilizerRec.h
model/CustomFertilizerRec.h
model/PestProduct.h
model/PesticideByAmount.h
model/PesticideByPercent.h
model/PesticideRec.h
model/PlantingRec.h
model/QenExport.h
model/QenFarm.h
model/QenField.h
model/QenFieldGeometry.h
model/QenGrower.h
model/QenRec.h
model/QenRecData.h
model/version.h
parser/QenXmlParser.h]])
