# What is installed, by component:
#   Runtime        the shared library
#   Development    headers, link library, the configuration for CMake and pkg-config
#   Tools          the qenxml command
#   Documentation  the documents, the sample packages and the example host (Documentation.cmake)
# Everything finds its parts relative to itself, so that an installed prefix can be moved; pkg-config
# is told where it is then.

include(CMakePackageConfigHelpers)

# The library has the same search path when built as when installed: the folder of a pugixml that is
# not the system's. CMake gives a library whose path it changes when installing a path that ends in
# ":" until then, and the loader takes that for the current folder.
set_target_properties(qenxml PROPERTIES
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH_USE_LINK_PATH ON)

install(TARGETS qenxml EXPORT qenxmlTargets
    RUNTIME COMPONENT Runtime
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE COMPONENT Development)
install(FILES ${qenxml_model_headers}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/qenxml/model COMPONENT Development)
install(FILES ${qenxml_parser_headers}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/qenxml/parser COMPONENT Development)

# For CMake: find_package(qenxml 1 CONFIG).
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/qenxml)
install(EXPORT qenxmlTargets NAMESPACE qenxml::
    DESTINATION ${package_dir} COMPONENT Development)
configure_package_config_file(cmake/qenxmlConfig.cmake.in qenxmlConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(qenxmlConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/qenxmlConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/qenxmlConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT Development)

# For pkg-config. The prefix is known for sure when installing.
cmake_path(APPEND pkgconfig_libdir "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
cmake_path(APPEND pkgconfig_includedir "\${prefix}" ${CMAKE_INSTALL_INCLUDEDIR})
configure_file(cmake/qenxml.pc.in qenxml.pc @ONLY)
install(CODE "
    file(READ \"${CMAKE_CURRENT_BINARY_DIR}/qenxml.pc\" text)
    string(REGEX REPLACE \"^prefix=[^\n]*\" \"prefix=\${CMAKE_INSTALL_PREFIX}\" text \"\${text}\")
    file(WRITE \"${CMAKE_CURRENT_BINARY_DIR}/installed/qenxml.pc\" \"\${text}\")"
    COMPONENT Development)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/installed/qenxml.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
