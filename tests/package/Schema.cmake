# docs/recpackage.xsd accepts every good package and catches every broken sample that a schema can
# catch. Where docs/package-format.md says that it is as free as the reader, or stricter, it is. What it
# accepts is read without an error, but for the cases that docs/package-format.md names.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

find_program(xmllint xmllint REQUIRED)
find_program(iconv iconv REQUIRED)
file(MAKE_DIRECTORY ${WORK_DIR})

# validate(VARIABLE FILE): "valid", or "caught" by the schema or because it is no XML at all.
# Anything else, a schema that is broken itself for one, ends the test.
function(validate variable file)
    execute_process(
        COMMAND ${xmllint} --noout --nonet --schema ${SOURCE_DIR}/docs/recpackage.xsd ${file}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result EQUAL 0)
        set(${variable} valid PARENT_SCOPE)
    elseif(result EQUAL 3 OR (result EQUAL 1 AND output MATCHES "parser error"))
        set(${variable} caught PARENT_SCOPE)
    else()
        message(FATAL_ERROR "xmllint ended with ${result}:\n${output}")
    endif()
endfunction()

# Samples

file(GLOB packages ${SOURCE_DIR}/examples/packages/*.xml)
foreach(package IN LISTS packages)
    validate(verdict ${package})
    expect_same("The verdict on ${package}" ${verdict} valid)
endforeach()

file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/schema_cannot_catch.txt uncaught REGEX "^[^#]")
foreach(line IN LISTS uncaught)
    if(NOT line MATCHES "^[-a-z0-9]+: ." OR line MATCHES ";")
        message(FATAL_ERROR "schema_cannot_catch.txt: no folder with a reason: ${line}")
    endif()
endforeach()
list(TRANSFORM uncaught REPLACE ":.*" "")

set(broken ${SOURCE_DIR}/examples/packages/broken)
file(GLOB folders RELATIVE ${broken} ${broken}/*)
list(REMOVE_ITEM folders README.md)
foreach(folder IN LISTS folders)
    set(expected caught)
    if(folder IN_LIST uncaught)
        set(expected valid)
        list(REMOVE_ITEM uncaught ${folder})
    endif()
    file(GLOB packages ${broken}/${folder}/*)
    if(NOT packages)
        message(FATAL_ERROR "No package in ${folder}")
    endif()
    foreach(package IN LISTS packages)
        validate(verdict ${package})
        expect_same("The verdict on ${package} (see schema_cannot_catch.txt)" ${verdict} ${expected})
    endforeach()
endforeach()
expect_same("The list of folders in schema_cannot_catch.txt that do not exist" "${uncaught}" "")

# Packages of docs/package-format.md, as they are and changed

file(READ ${SOURCE_DIR}/docs/package-format.md format)
code_block(minimal "${format}" "## A minimal package" "```xml")
code_block(full "${format}" "## A full package" "```xml")

set(file ${WORK_DIR}/00112233-4455-6677-8899-aabbccddeeff.xml)

# write_package(PACKAGE [OLD NEW]): one with the first OLD text replaced by NEW.
function(write_package package)
    if(ARGC GREATER 1)
        string(FIND "${package}" "${ARGV1}" at)
        if(at EQUAL -1)
            message(FATAL_ERROR "The package does not hold ${ARGV1}")
        endif()
        string(LENGTH "${ARGV1}" length)
        math(EXPR rest "${at} + ${length}")
        string(SUBSTRING "${package}" 0 ${at} before)
        string(SUBSTRING "${package}" ${rest} -1 after)
        set(package "${before}${ARGV2}${after}")
    endif()
    file(WRITE ${file} "${package}")
endfunction()

# expect_reading(WHAT PATTERN): what the command finds in the written package.
function(expect_reading what pattern)
    if(NOT EXISTS "${COMMAND}")
        return()
    endif()
    execute_process(COMMAND ${COMMAND} check ${file}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT "${result}: ${output}" MATCHES "${pattern}")
        message(FATAL_ERROR "Reading ${what}, expected ${pattern}:\n${result}: ${output}")
    endif()
endfunction()

# expect_verdict(VERDICT PACKAGE [OLD NEW]): on a package with the first OLD text replaced by NEW. A
# valid one is read without an error.
function(expect_verdict expected package)
    write_package("${package}" "${ARGV2}" "${ARGV3}")
    validate(verdict ${file})
    set(what "an example with \"${ARGV2}\" changed to \"${ARGV3}\"")
    expect_same("The verdict on ${what}" ${verdict} ${expected})
    if(verdict STREQUAL valid)
        expect_reading("${what}" "^0: ")
    endif()
endfunction()

# expect_unseen(PATTERN PACKAGE OLD NEW): likewise; the package is valid, and reading it finds
# something that PATTERN matches.
function(expect_unseen pattern package old new)
    write_package("${package}" "${old}" "${new}")
    validate(verdict ${file})
    set(what "an example with \"${old}\" changed to \"${new}\"")
    expect_same("The verdict on ${what}" ${verdict} valid)
    expect_reading("${what}" "${pattern}")
endfunction()

expect_verdict(valid "${minimal}")
expect_verdict(valid "${full}")

# As free as the reader.
expect_verdict(valid "${minimal}" "</Recommendations>" "</Recommendations><FieldName>Breite</FieldName>")
expect_verdict(valid "${full}" "<UOM>kg</UOM>" "<UOM/>")
expect_verdict(valid "${full}" "<EditDate>2025-09-22T17:45:00</EditDate>" "")
expect_verdict(valid "${full}" " MgmtZoneID=\"6a3d1f9e-84c7-4250-8eb3-c5f70a2d9b48\"" "")
expect_verdict(valid "${full}" "<AverageRate>170" "<AverageRate> +1.7e2 ")
expect_verdict(valid "${full}" "SeasonID=\"2026\"" "SeasonID=\"0\"")
expect_verdict(valid "${full}" "<RecPackage>"
    "<RecPackage xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"
                 xsi:noNamespaceSchemaLocation=\"recpackage.xsd\">")

# Identifiers that the reader takes, in another spelling or for none.
expect_verdict(caught "${full}" "8b1e5d70-4c29-4a6f-93e8-d05f7a2c1b64" "8B1E5D70-4C29-4A6F-93E8-D05F7A2C1B64")
expect_verdict(caught "${full}" "8b1e5d70-4c29-4a6f-93e8-d05f7a2c1b64" "8b1e5d704c294a6f93e8d05f7a2c1b64")
expect_verdict(caught "${full}" "5f83b0a7-1d6c-4e92-b4c8-60f9e2d7a315" "{5f83b0a7-1d6c-4e92-b4c8-60f9e2d7a315}")
expect_verdict(caught "${full}" "5f83b0a7-1d6c-4e92-b4c8-60f9e2d7a315" "00000000-0000-0000-0000-000000000000")
expect_verdict(caught "${full}" "6a3d1f9e-84c7-4250-8eb3-c5f70a2d9b48" "")

# What is empty or incomplete.
expect_verdict(caught "${full}" "<UOMID>21</UOMID>" "<UOMID/>")
expect_verdict(caught "${full}" "<MinimumRate>150</MinimumRate>" "<MinimumRate/>")
expect_verdict(caught "${full}" "<MinimumRate>150</MinimumRate>" "")
expect_verdict(caught "${full}" "<FarmName>Brandlhof</FarmName>" "<FarmName/>")
foreach(blank "   " "\n\t" "&#32;" "<![CDATA[ ]]>")
    expect_verdict(caught "${full}" "<FarmName>Brandlhof" "<FarmName>${blank}")
    expect_verdict(caught "${full}" "<RateUOM>kg/ha" "<RateUOM>${blank}")
    expect_verdict(valid "${full}" "<UOM>kg" "<UOM>${blank}")
endforeach()
expect_verdict(valid "${full}" "<FarmName>Brandlhof" "<FarmName>\n Brandl\n hof\n")
expect_verdict(caught "${full}" "<Latitude>48.80317</Latitude>" "")
expect_verdict(caught "${full}" "<Latitude>48" "<Latitude>98")
expect_verdict(caught "${full}" "<Longitude>12" "<Longitude>-212")
expect_verdict(caught "${full}" "SeasonID=\"2026\"" "SeasonID=\"-1\"")
expect_verdict(caught "${full}" "<Season SeasonID=\"2026\">" "<Season>")
expect_verdict(caught "${minimal}" "</RecGeometry>" "</RecGeometry><RecData/>")

# Mistakes that the reader passes over in silence.
expect_verdict(caught "${full}" "<UOM>kg</UOM>" "")
expect_verdict(caught "${full}" "<AverageRate>170" "<AverageRate>54,5")
expect_verdict(caught "${full}" "<AverageRate>170" "<AverageRate>nan")
expect_verdict(caught "${full}" "<AverageRate>170" "<AverageRate>inf")
foreach(sign "" "-")
    expect_verdict(caught "${full}" "<AverageRate>170" "<AverageRate>${sign}1e999")
    expect_verdict(caught "${full}" "<AverageRate>170" "<AverageRate>${sign}1.8e308")
    expect_verdict(valid "${full}" "<AverageRate>170" "<AverageRate>${sign}1.7976931348623157e308")
endforeach()
expect_verdict(caught "${full}" "<UOMID>21" "<UOMID>99999999999")
expect_verdict(caught "${full}" "<UOMID>21" "<UOMID>1.9")
expect_verdict(caught "${full}" "<UOMID>21" "<UOMID>0x1F")
expect_verdict(caught "${full}" "GrowerID=\"8b" "GrowerID=\"gb")
expect_verdict(caught "${full}" "GrowerID=\"8b" "GrowerID=\" 8b")
expect_verdict(caught "${full}" "d05f7a2c1b64" "d05f7a2c1b64, Brandl")
expect_verdict(caught "${full}" "<AverageRate>170</AverageRate>" "<AverageRate>170</AverageRate><Remark/>")
expect_verdict(caught "${full}" "<RecName>" "<recname/><RecName>")
expect_verdict(caught "${full}" "<RecName>" "<RecName>Weizen</RecName><RecName>")
expect_verdict(caught "${full}" "<RecData>" "<RecData>none")
expect_verdict(caught "${full}" "</Planting>" "</Planting><Pesticide/>")
expect_verdict(caught "${full}" "<FarmName>Brandlhof</FarmName>" "<FarmName>Brandl<b>hof</b></FarmName>")
expect_verdict(caught "${full}" "<Farm FarmID=\"47" "<Farm FarmID=\"47f0a3d9-e612-4b8c-8d75-3c9b60e1f2a8\"/><Farm FarmID=\"47")
expect_verdict(caught "${minimal}" "</RecPackage>"
    "<Grower GrowerID=\"3e6c1f0a-52b7-4d3e-9a61-0c8f1d2b7e45\"/></RecPackage>")
expect_verdict(caught "${full}" "RecID=\"c4f82a6b-51d0-4e39-b7a4-2b0e9d6f8c17\"" "RecID=\"0e7d4c93-b8a1-4f56-8c2e-f19a6d3b5072\"")
expect_verdict(caught "${full}" "<RecPackage>" "<RecPackage xmlns=\"urn:packages\">")
expect_verdict(caught "<RecPackage/>")

# Errors that the schema does not see.
foreach(split "<!-- -->30bf" "<?split?>30bf" "<![CDATA[30bf]]>")
    expect_unseen("^1: .*error: FieldGeometryID \"a97c25e1-\" is too short" "${minimal}"
        "a97c25e1-30bf" "a97c25e1-${split}")
endforeach()
expect_unseen("^1: .*error: FieldGeometryID" "${minimal}" "a97c25e1-" "<![CDATA[]]>a97c25e1-")
foreach(harmless "<!-- -->" "<?harmless?>")
    expect_verdict(valid "${minimal}" "<FieldGeometryID>" "<FieldGeometryID>${harmless}")
    expect_verdict(valid "${minimal}" "</FieldGeometryID>" "${harmless}</FieldGeometryID>")
endforeach()
expect_verdict(valid "${minimal}" "a97c25e1-30bf-4d86-85f2-1b6e4c09d7a8"
    "<![CDATA[a97c25e1-30bf-4d86-85f2-1b6e4c09d7a8]]>")
foreach(item Grower Farm Field Rec)
    foreach(space "&#32;" "&#x9;" "&#10;")
        expect_unseen("^1: .*error: the text .* follows the first ${item} and is read as one too"
            "${minimal}" "</${item}>" "</${item}>${space}")
    endforeach()
endforeach()
set(grower_in_IBM037 Holm)
set(grower_in_ISO-2022-JP 実) # has a "<" among its bytes
foreach(encoding IBM037 ISO-2022-JP)
    write_package("<?xml version=\"1.0\" encoding=\"${encoding}\"?>\n${minimal}"
        "<Farm " "<GrowerName>${grower_in_${encoding}}</GrowerName><Farm ")
    file(RENAME ${file} ${file}.utf8)
    execute_process(COMMAND ${iconv} -f UTF-8 -t ${encoding} ${file}.utf8
        OUTPUT_FILE ${file} COMMAND_ERROR_IS_FATAL ANY)
    validate(verdict ${file})
    expect_same("The verdict on an example in ${encoding}" ${verdict} valid)
    expect_reading("an example in ${encoding}" "^1: .*error: .*\\[not-well-formed\\]")
endforeach()

# What it does not see and is lost without an error.
expect_unseen("^0: .*it is read as \"Brandl\"" "${full}" "Brandlhof" "Brandl<!-- -->hof")
expect_unseen("^0: .*it is read as \"Brandl\"" "${full}" "Brandlhof" "Brandl<![CDATA[hof]]>")
expect_unseen("^0: .*it is read as \"1\"" "${full}" "<AverageRate>170" "<AverageRate>1<?split?>70")
expect_unseen("^0: .*the rec is kept without product data" "${full}" "<Planting>" "&#32;<Planting>")
