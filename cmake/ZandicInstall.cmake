# What `cmake --install` puts where, and the packages that CPack makes of it.
#
# Components: library (what a program needs to run), development (headers, CMake and pkg-config files,
# what a program needs to be built), tool (zandic).

include(CMakePackageConfigHelpers)

set(ZANDIC_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/ZANDicBase)
set(ZANDIC_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZANDicBase)

# Until version 1 a minor version may break what programs were built with, so it is part of the soname.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(ZANDIC_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
else()
  set(ZANDIC_SOVERSION ${PROJECT_VERSION_MAJOR})
endif()

# zandic_public_library(<target> [<name>])
#
# Makes <target> one that other projects use: as ZANDicBase::<name> (the target's own name unless given), with
# the headers of its folder include/, and, when it is a shared library, with its version and no symbol of the
# standard library.
function(zandic_public_library target)
  set(name ${ARGV1})
  if(NOT name)
    set(name ${target})
  endif()
  get_target_property(type ${target} TYPE)
  set(access PUBLIC)
  if(type STREQUAL INTERFACE_LIBRARY)
    set(access INTERFACE)
  else()
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${ZANDIC_SOVERSION})
    target_link_options(${target} PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
    # The others are looked for beside it, in the build tree as where it is installed.
    set_target_properties(${target} PROPERTIES INSTALL_RPATH $ORIGIN BUILD_WITH_INSTALL_RPATH ON)
    # Nobody puts a function of their own in the place of one of these, so calls within a library go straight
    # there, and starting a process resolves fewer names.
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    target_link_options(${target} PRIVATE LINKER:-Bsymbolic-functions)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
  endif()

  file(GLOB headers CONFIGURE_DEPENDS include/*.h include/*.hpp)
  target_sources(${target} ${access} FILE_SET HEADERS BASE_DIRS include FILES ${headers})
  target_compile_features(${target} ${access} cxx_std_20)
  if(NOT TARGET ZANDicBase::${name})
    add_library(ZANDicBase::${name} ALIAS ${target})
  endif()
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  install(TARGETS ${target} EXPORT ZANDicBaseTargets
    LIBRARY COMPONENT library NAMELINK_COMPONENT development
    FILE_SET HEADERS DESTINATION ${ZANDIC_INSTALL_INCLUDEDIR} COMPONENT development
    INCLUDES DESTINATION ${ZANDIC_INSTALL_INCLUDEDIR}
  )
endfunction()

# zandic_install_package_files(): the files by which CMake and pkg-config find the installed libraries.
function(zandic_install_package_files)
  install(EXPORT ZANDicBaseTargets NAMESPACE ZANDicBase::
    DESTINATION ${ZANDIC_INSTALL_CMAKEDIR} COMPONENT development)
  configure_package_config_file(cmake/ZANDicBaseConfig.cmake.in ZANDicBaseConfig.cmake
    INSTALL_DESTINATION ${ZANDIC_INSTALL_CMAKEDIR}
    NO_SET_AND_CHECK_MACRO)
  write_basic_package_version_file(ZANDicBaseConfigVersion.cmake COMPATIBILITY SameMinorVersion)
  file(RELATIVE_PATH ZANDIC_PC_TO_PREFIX
    /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  configure_file(cmake/zandicbase.pc.in zandicbase.pc @ONLY)
  install(FILES
      ${PROJECT_BINARY_DIR}/ZANDicBaseConfig.cmake
      ${PROJECT_BINARY_DIR}/ZANDicBaseConfigVersion.cmake
      cmake/ZandicKeep.cmake
    DESTINATION ${ZANDIC_INSTALL_CMAKEDIR} COMPONENT development)
  install(FILES ${PROJECT_BINARY_DIR}/zandicbase.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()
