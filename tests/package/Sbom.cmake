# scripts/sbom writes what CycloneDX asks for, names what the library and the command are built with,
# and refers to nothing that it does not name.

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

# Everything that is built with has a version, an address and a licence.
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
    string(JSON address GET "${sbom}" components ${i} purl)
    if(NOT address MATCHES "^pkg:deb/[a-z]+/${name}@[^ +/]+\\?distro=[a-z0-9.-]+$" OR license STREQUAL "")
        message(FATAL_ERROR "${name} has the address ${address} and the licence ${license}")
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

# What the library is built with is what its development package brings.
list(SORT dependencies_of_libqenxml)
expect_same("What the library depends on" "${dependencies_of_libqenxml}"
    "libboost-dev;libboost-system-dev;libpugixml-dev")
foreach(package libqenxml libcli11-dev libfmt-dev)
    if(NOT package IN_LIST dependencies_of_qenxml)
        message(FATAL_ERROR "qenxml does not depend on ${package}")
    endif()
endforeach()
