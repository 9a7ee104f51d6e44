# The Debian packages that `cpack` makes: one for programs that use the libraries, one for building them, one
# for the tool.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zandicbase)
set(CPACK_PACKAGE_VENDOR ZANDicBase)
set(CPACK_PACKAGE_CONTACT "The maintainers of ZANDicBase <zandicbase@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Data dictionary of packages, classes and attributes")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL library development tool)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libzandicbase${ZANDIC_SOVERSION})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION " Loads packages of classes, attributes, relationships and enumerations from XML
 documents, checks them, and answers questions about them.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzandicbase-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libzandicbase${ZANDIC_SOVERSION} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION " Headers, and the files by which CMake and pkg-config find the libraries.")
set(CPACK_DEBIAN_TOOL_PACKAGE_NAME zandic)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOL_DESCRIPTION " The command line tool: loads, shows, dumps, saves and exports packages.")

include(CPack)
