# The documents, and the reference of the public interface. They are installed as they lie in the
# tree, so that their links hold.

include(GNUInstallDirs)

option(QENXML_REFERENCE "Make the reference of the public interface, with doxygen" OFF)

if(QENXML_REFERENCE)
    find_package(Doxygen REQUIRED)
    set(inputs ${PROJECT_SOURCE_DIR}/docs/reference.md ${PROJECT_SOURCE_DIR}/docs/guide.md
        ${qenxml_model_headers} ${qenxml_parser_headers})
    list(JOIN inputs "\" \"" QENXML_REFERENCE_INPUT)
    string(PREPEND QENXML_REFERENCE_INPUT "\"")
    string(APPEND QENXML_REFERENCE_INPUT "\"")
    configure_file(docs/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
    # The pages lead to the other documents, which lie beside them when they are installed.
    foreach(folder docs examples)
        file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${PROJECT_BINARY_DIR}/${folder} SYMBOLIC)
    endforeach()
    add_custom_target(qenxml_reference
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${PROJECT_BINARY_DIR}/html # of items that have gone
        COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile
        COMMENT "Making the reference of the public interface" VERBATIM)
endif()

install(FILES README.md CHANGELOG.md CONTRIBUTING.md SECURITY.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation
    FILES_MATCHING PATTERN *.md PATTERN *.xsd PATTERN *.json PATTERN *.svg PATTERN *.png PATTERN *.1)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation
    FILES_MATCHING PATTERN *.cpp PATTERN *.md PATTERN *.xml PATTERN CMakeLists.txt)
install(DIRECTORY ${PROJECT_BINARY_DIR}/html DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT Documentation OPTIONAL)
