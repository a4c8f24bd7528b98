# Builds and runs the example host in the four ways in which hosts use the library: installed, by
# CMake and by pkg-config, and as sources, in a folder and fetched. KIND is "shared" or "static".
# What was installed is moved away first, and nothing of its build is left.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

if(INSTRUMENTATION)
    message("Skipped: the same with instrumentation")
    return()
endif()

set(shared OFF)
if(KIND STREQUAL "shared")
    set(shared ON)
endif()
set(warnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Werror)
list(JOIN warnings " " warning_flags)
file(REMOVE_RECURSE ${WORK_DIR})

# build(NAME SOURCE OPTION...): configures and builds a project in a folder of that name. The sources
# of the library are compiled together, which takes a quarter of the time.
function(build name source)
    run(${CMAKE_COMMAND} -S ${source} -B ${WORK_DIR}/${name} -G ${GENERATOR}
        -D CMAKE_CXX_COMPILER=${CXX}
        -D CMAKE_BUILD_TYPE=Debug
        -D CMAKE_UNITY_BUILD=ON
        -D CMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
        "-DCMAKE_CXX_FLAGS=${warning_flags}"
        ${ARGN})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/${name})
endfunction()

# Installed, and moved.
build(library ${SOURCE_DIR} -D BUILD_SHARED_LIBS=${shared} -D QENXML_BUILD_TOOLS=OFF)
foreach(component Runtime Development)
    run(${CMAKE_COMMAND} --install ${WORK_DIR}/library --prefix ${WORK_DIR}/prefix
        --component ${component})
endforeach()

# pkg_config(VARIABLE PREFIX OPTION...): what it says about the library in a prefix, as a list.
function(pkg_config variable prefix)
    file(GLOB_RECURSE pkgconfig_file ${prefix}/qenxml.pc)
    get_filename_component(pkgconfig_dir ${pkgconfig_file} DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} ${pkgconfig_dir})
    execute_process(COMMAND pkg-config ${ARGN} qenxml
        OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(output UNIX_COMMAND "${output}")
    set(${variable} ${output} PARENT_SCOPE)
endfunction()
pkg_config(compile_flags ${WORK_DIR}/prefix --cflags-only-I)
set(include_dir ${WORK_DIR}/prefix/include)
expect_same("The folders of headers for pkg-config" "${compile_flags}"
    "-I${include_dir}/qenxml;-I${include_dir}")

set(prefix ${WORK_DIR}/elsewhere/moved)
file(MAKE_DIRECTORY ${WORK_DIR}/elsewhere)
file(RENAME ${WORK_DIR}/prefix ${prefix})
file(REMOVE_RECURSE ${WORK_DIR}/library)

build(find_package ${SOURCE_DIR}/examples/host -D CMAKE_PREFIX_PATH=${prefix})
expect_host_output(${WORK_DIR}/find_package/host)

set(moved --define-variable=prefix=${prefix})
pkg_config(compile_flags ${prefix} ${moved} --cflags)
pkg_config(link_flags ${prefix} ${moved} --libs)
pkg_config(libdir ${prefix} ${moved} --variable=libdir)
run(${CXX} -std=c++17 ${warnings} ${compile_flags} -o ${WORK_DIR}/pkg_config_host
    ${SOURCE_DIR}/examples/host/main.cpp ${link_flags} -Wl,-rpath,${libdir})
expect_host_output(${WORK_DIR}/pkg_config_host)

# Includes that begin with "qenxml/" work in all ways, too (subdirectory_host has one as well).
build(prefixed ${CMAKE_CURRENT_LIST_DIR}/prefixed_host -D CMAKE_PREFIX_PATH=${prefix})
run(${CXX} -std=c++17 ${warnings} ${compile_flags} -fsyntax-only
    ${CMAKE_CURRENT_LIST_DIR}/prefixed_host/main.cpp)

# As sources. A host that says nothing gets a static library, like every project of CMake.
set(kind_option "")
if(shared)
    set(kind_option -D BUILD_SHARED_LIBS=ON)
endif()
build(subdirectory ${CMAKE_CURRENT_LIST_DIR}/subdirectory_host
    -D QENXML_SOURCE=${SOURCE_DIR} ${kind_option})
expect_host_output(${WORK_DIR}/subdirectory/host)

execute_process(
    COMMAND ${CMAKE_COMMAND} -E tar czf ${WORK_DIR}/qenxml.tar.gz
        CMakeLists.txt cmake libqenxml.map model parser qenxml
    WORKING_DIRECTORY ${SOURCE_DIR} COMMAND_ERROR_IS_FATAL ANY)
build(fetched ${CMAKE_CURRENT_LIST_DIR}/fetched_host
    -D QENXML_SOURCE=${WORK_DIR}/qenxml.tar.gz -D QENXML_HOST=${SOURCE_DIR}/examples/host/main.cpp
    ${kind_option})
expect_host_output(${WORK_DIR}/fetched/host)

# Together with a pugixml of the host's own, and built with a sanitizer as the host is.
build(own_pugixml ${CMAKE_CURRENT_LIST_DIR}/subdirectory_host
    -D QENXML_SOURCE=${SOURCE_DIR} ${kind_option}
    -D QENXML_INSTALL=OFF -D OWN_PUGIXML=ON -D CMAKE_DISABLE_FIND_PACKAGE_pugixml=ON
    "-DCMAKE_CXX_FLAGS=${warning_flags} -fsanitize=address")
expect_host_output(${WORK_DIR}/own_pugixml/host)

# They are what was asked for.
foreach(host find_package/host pkg_config_host subdirectory/host fetched/host own_pugixml/host)
    execute_process(COMMAND objdump -p ${WORK_DIR}/${host}
        OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    string(FIND "${headers}" "libqenxml.so.1" position)
    if(shared AND position EQUAL -1)
        message(FATAL_ERROR "${host} is not linked with libqenxml.so.1")
    elseif(NOT shared AND NOT position EQUAL -1)
        message(FATAL_ERROR "${host} needs libqenxml.so.1")
    endif()
endforeach()

# A host that was written for another major version is told so.
file(WRITE ${WORK_DIR}/version/CMakeLists.txt [[
cmake_minimum_required(VERSION 3.25)
project(version LANGUAGES CXX)
foreach(version 1 1.0 1.0.0)
    find_package(qenxml ${version} CONFIG REQUIRED)
endforeach()
foreach(version 0.9 1.999 2)
    unset(qenxml_DIR CACHE)
    find_package(qenxml ${version} CONFIG QUIET)
    if(qenxml_FOUND)
        message(FATAL_ERROR "${qenxml_VERSION} is taken for ${version}")
    endif()
endforeach()
]])
run(${CMAKE_COMMAND} -S ${WORK_DIR}/version -B ${WORK_DIR}/version/build -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
