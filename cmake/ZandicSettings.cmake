# Options, and the settings that every target of this build shares.

option(ZANDIC_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)
option(ZANDIC_COVERAGE "Instrument for gcov" OFF)
option(ZANDIC_BUILD_TESTS "Build the tests and the examples" ${PROJECT_IS_TOP_LEVEL})
option(ZANDIC_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(ZANDIC_BUILD_FUZZERS "Build the fuzz targets (clang only)" OFF)
set(ZANDIC_SANITIZE "" CACHE STRING "Sanitizers for every target, separated by commas (address,undefined)")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

find_program(ZANDIC_CCACHE ccache)
mark_as_advanced(ZANDIC_CCACHE)
if(ZANDIC_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ZANDIC_CCACHE})
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# The warnings every target of the project is clean of. Linked PRIVATE, so nobody inherits them.
add_library(zandic_warnings INTERFACE)
target_compile_options(zandic_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<BOOL:${ZANDIC_WARNINGS_AS_ERRORS}>:-Werror>
)

if(ZANDIC_SANITIZE)
  add_compile_options(-fsanitize=${ZANDIC_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${ZANDIC_SANITIZE})
endif()

if(ZANDIC_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()

include(cmake/ZandicHardening.cmake)
include(cmake/ZandicKeep.cmake)
