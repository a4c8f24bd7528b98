# scripts/sbom writes what CycloneDX asks for, names what the library and the command are built with
# and are linked with, by the packages that hold it, and refers to nothing that it does not name.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

set(ENV{SOURCE_DATE_EPOCH} 1767225600)
execute_process(COMMAND ${SOURCE_DIR}/scripts/sbom OUTPUT_VARIABLE sbom COMMAND_ERROR_IS_FATAL ANY)

# expect_member(EXPECTED PATH...): a text or number in it.
function(expect_member expected)
    string(JSON actual GET "${sbom}" ${ARGN})
    expect_same("${ARGN}" "${actual}" "${expected}")
endfunction()
expect_member(CycloneDX bomFormat)
expect_member(1.5 specVersion)
expect_member(1 version)
expect_member(2026-01-01T00:00:00Z metadata timestamp)
expect_member(qenxml metadata component name)
expect_member(${VERSION} metadata component version)
expect_member(libqenxml metadata component components 0 name)
expect_member(${VERSION} metadata component components 0 version)

# Everything that is built with has a version, an address, which names the source package, and a
# licence.
set(named qenxml libqenxml)
string(JSON count LENGTH "${sbom}" components)
math(EXPR last "${count} - 1")
foreach(i RANGE ${last})
    string(JSON name GET "${sbom}" components ${i} name)
    string(JSON version GET "${sbom}" components ${i} version)
    string(JSON license GET "${sbom}" components ${i} licenses 0 license id)
    expect_member(library components ${i} type)
    expect_member(${name} components ${i} bom-ref)
    execute_process(COMMAND dpkg-query -W -f "\${Version}" ${name}
        OUTPUT_VARIABLE installed COMMAND_ERROR_IS_FATAL ANY)
    expect_same("The version of ${name}" "${version}" "${installed}")
    execute_process(COMMAND dpkg-query -W -f "\${source:Package}@\${source:Version}" ${name}
        OUTPUT_VARIABLE upstream COMMAND_ERROR_IS_FATAL ANY)
    foreach(part version upstream)
        string(REPLACE "+" "%2B" ${part} "${${part}}")
        string(REPLACE "@" "%40" ${part} "${${part}}")
    endforeach()
    string(JSON address GET "${sbom}" components ${i} purl)
    string(REGEX REPLACE "^pkg:deb/[a-z]+/|distro=[a-z0-9.-]+&" "" address "${address}")
    expect_same("The address of ${name}" "${address}" "${name}@${version}?upstream=${upstream}")
    if(license STREQUAL "")
        message(FATAL_ERROR "${name} has no licence")
    endif()
    list(APPEND named ${name})
endforeach()

# Each of them has its dependencies listed, which are among them.
set(referring "")
string(JSON count LENGTH "${sbom}" dependencies)
math(EXPR last "${count} - 1")
foreach(i RANGE ${last})
    string(JSON reference GET "${sbom}" dependencies ${i} ref)
    list(APPEND referring ${reference})
    string(JSON needed LENGTH "${sbom}" dependencies ${i} dependsOn)
    while(needed GREATER 0)
        math(EXPR needed "${needed} - 1")
        string(JSON dependency GET "${sbom}" dependencies ${i} dependsOn ${needed})
        if(NOT dependency IN_LIST named)
            message(FATAL_ERROR "${reference} depends on ${dependency}, which is not named")
        endif()
        list(APPEND dependencies_of_${reference} ${dependency})
    endwhile()
endforeach()
list(SORT named)
list(SORT referring)
expect_same("What lists its dependencies" "${referring}" "${named}")

# owner_of(VARIABLE FILE): the package that holds a file, which may be a pattern.
function(owner_of variable file)
    execute_process(COMMAND dpkg -S ${file} OUTPUT_VARIABLE owner COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE ":.*" "" owner "${owner}")
    set(${variable} ${owner} PARENT_SCOPE)
endfunction()

# The packages that hold the headers, and not those that only depend on one of the present version.
owner_of(boost /usr/include/boost/uuid/uuid.hpp)
owner_of(pugixml_library */libpugixml.so.1)
set(expected ${boost} libpugixml-dev ${pugixml_library})
list(SORT expected)
list(SORT dependencies_of_libqenxml)
expect_same("What the library depends on" "${dependencies_of_libqenxml}" "${expected}")
foreach(package libqenxml ${boost} libcli11-dev libexpat1-dev libfmt-dev libxlsxwriter-dev
        nlohmann-json3-dev)
    if(NOT package IN_LIST dependencies_of_qenxml)
        message(FATAL_ERROR "qenxml does not depend on ${package}")
    endif()
endforeach()

# expect_linked_named(PROGRAM REFERENCE): the shared libraries that a binary asks for are among the
# dependencies of what it is called here, but for those of the compiler.
function(expect_linked_named program reference)
    execute_process(COMMAND readelf -d ${program} OUTPUT_VARIABLE section COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "\\(NEEDED\\)[^\n]*" needed "${section}")
    if(NOT needed MATCHES "libpugixml")
        message(FATAL_ERROR "readelf has not found what ${program} is linked with:\n${section}")
    endif()
    foreach(line IN LISTS needed)
        string(REGEX REPLACE ".*: .(.*)\\]" "\\1" file "${line}")
        if(file MATCHES "^lib(qenxml|c|m|gcc_s|stdc\\+\\+|c\\+\\+|c\\+\\+abi|asan|tsan|ubsan)\\.so|^ld(64|-linux)")
            continue()
        endif()
        owner_of(package */${file})
        if(NOT package IN_LIST dependencies_of_${reference})
            message(FATAL_ERROR "${reference} is linked with ${package}, which it does not name")
        endif()
    endforeach()
endfunction()
if(SHARED)
    expect_linked_named(${LIBRARY} libqenxml)
endif()
if(COMMAND)
    expect_linked_named(${COMMAND} qenxml)
endif()

# With the page, what that is made of is named, too: headers, sources and the compiler, as scripts/web
# leaves them.
file(REMOVE_RECURSE ${WORK_DIR})
file(WRITE ${WORK_DIR}/libraries-web/versions
    "libcli11-dev 2.0+a-1 cli11 2.0-1\nlibboost-dev 1 boost-defaults 1\n")
file(WRITE ${WORK_DIR}/libraries-web/compiler "emscripten 3-1 emscripten 3-1\n")
execute_process(COMMAND bash -c "set -eu; . scripts/packages.sh; echo $sources_web"
    WORKING_DIRECTORY ${SOURCE_DIR} OUTPUT_VARIABLE sources
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(sources)
set(expected "\"page:libcli11-dev\", \"page:emscripten\"")
foreach(source IN LISTS sources)
    file(WRITE ${WORK_DIR}/sources-web/${source}_1.dsc "Format: 3.0\nVersion: 1+${source}-2\n")
    string(APPEND expected ", \"page:${source}\"")
endforeach()
execute_process(COMMAND ${SOURCE_DIR}/scripts/sbom --page ${WORK_DIR}
    OUTPUT_VARIABLE with_page COMMAND_ERROR_IS_FATAL ANY)
string(JSON version GET "${with_page}" metadata component components 1 version)
expect_same("The version of the page" "${version}" "${VERSION}")
foreach(text "\"qenxml.html\", \"dependsOn\": [${expected}]"
        "libcli11-dev@2.0%2Ba-1?distro=" "upstream=cli11%402.0-1" "expat@1%2Bexpat-2?distro=")
    string(FIND "${with_page}" "${text}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "The list with the page lacks ${text}:\n${with_page}")
    endif()
endforeach()
