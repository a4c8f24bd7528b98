# Compiles the sources of the library and the example host with one call of the compiler: no build
# system, no generated file.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

file(GLOB sources ${SOURCE_DIR}/model/*.cpp ${SOURCE_DIR}/parser/*.cpp)
file(MAKE_DIRECTORY ${WORK_DIR})
run(${CXX} -std=c++17 -I ${SOURCE_DIR} -o ${WORK_DIR}/host
    ${SOURCE_DIR}/examples/host/main.cpp ${sources} -lpugixml)
expect_host_output(${WORK_DIR}/host)

# Includes that begin with "qenxml/" find the same headers.
run(${CXX} -std=c++17 -fsyntax-only -I ${SOURCE_DIR}
    ${CMAKE_CURRENT_LIST_DIR}/prefixed_host/main.cpp)
