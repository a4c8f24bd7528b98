# The library: qenxml::qenxml.

include(GNUInstallDirs)

# A project around this one may bring its own.
if(NOT TARGET pugixml::pugixml)
    find_package(pugixml REQUIRED)
endif()
if(NOT TARGET Boost::headers)
    find_package(Boost 1.55 REQUIRED OPTIONAL_COMPONENTS system)
endif()

file(GLOB qenxml_sources CONFIGURE_DEPENDS model/*.cpp parser/*.cpp)
file(GLOB qenxml_model_headers CONFIGURE_DEPENDS model/*.h)
file(GLOB qenxml_parser_headers CONFIGURE_DEPENDS parser/*.h)

add_library(qenxml ${qenxml_sources})
add_library(qenxml::qenxml ALIAS qenxml)

target_compile_features(qenxml PUBLIC cxx_std_17)
target_include_directories(qenxml PUBLIC
    $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/qenxml>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>) # for <qenxml/parser/QenXmlParser.h>
target_link_libraries(qenxml
    PUBLIC pugixml::pugixml Boost::headers
    PRIVATE $<BUILD_INTERFACE:qenxml_developer_flags>)
if(TARGET Boost::system)
    # Its error categories; a library of its own only in some installations of Boost, so that who
    # links an installed libqenxml must not be made to look for it.
    target_link_libraries(qenxml PRIVATE $<BUILD_INTERFACE:Boost::system>)
endif()

set_target_properties(qenxml PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
qenxml_harden(qenxml)
if(BUILD_SHARED_LIBS)
    # Calls of pugixml directly instead of by way of a stub: 6 % less time for a small package.
    target_compile_options(qenxml PRIVATE -fno-plt)
    set(export_map ${CMAKE_CURRENT_SOURCE_DIR}/libqenxml.map)
    # --as-needed: nothing that it does not use, Boost.System, which is all in headers, before all.
    target_link_options(qenxml PRIVATE LINKER:--version-script=${export_map} LINKER:--as-needed)
    if(NOT QENXML_SANITIZERS AND NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
        # With clang, the functions of the sanitizers are in the program.
        target_link_options(qenxml PRIVATE LINKER:--no-undefined)
    endif()
    set_property(TARGET qenxml APPEND PROPERTY LINK_DEPENDS ${export_map})
endif()
