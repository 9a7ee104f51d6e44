# The sources of the libraries, and of the tool's dump, once more: instrumented for the fuzz targets alone, so
# that the rest of this build stays as fast as it is and internals can be reached.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "The fuzz targets need clang: use the preset clang.")
endif()

set(fuzz_sanitizers address,undefined)

set(own_libraries ZELSystem OXMIDicInterfaces ZANDicFormat ZANDicBase zandic_dump)
add_library(zandic_fuzzed OBJECT)
target_compile_options(zandic_fuzzed
  PRIVATE -fsanitize=fuzzer-no-link -U_FORTIFY_SOURCE
  PUBLIC -fsanitize=${fuzz_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer -g1
    -U_FORTIFY_SOURCE  # its checked calls are not seen by the sanitizers
)
foreach(library IN LISTS own_libraries)
  if(NOT TARGET ${library})
    continue()
  endif()
  target_include_directories(zandic_fuzzed PUBLIC
    $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>
  )
  get_target_property(type ${library} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    continue()
  endif()
  target_include_directories(zandic_fuzzed PUBLIC $<TARGET_PROPERTY:${library},INCLUDE_DIRECTORIES>)
  target_compile_definitions(zandic_fuzzed PUBLIC $<TARGET_PROPERTY:${library},COMPILE_DEFINITIONS>)
  get_target_property(directory ${library} SOURCE_DIR)
  get_target_property(sources ${library} SOURCES)
  foreach(source IN LISTS sources)
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${directory})
    target_sources(zandic_fuzzed PRIVATE ${source})
  endforeach()
  get_target_property(linked ${library} LINK_LIBRARIES)
  foreach(name IN LISTS linked)
    string(REGEX REPLACE "::.*" "" base "${name}")
    if(name AND NOT base IN_LIST own_libraries AND NOT name STREQUAL "zandic_warnings")
      target_link_libraries(zandic_fuzzed PUBLIC ${name})
    endif()
  endforeach()
endforeach()
