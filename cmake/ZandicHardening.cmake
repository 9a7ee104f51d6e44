# What makes a fault in an optimised build end the process instead of being used: checks of buffers by the C
# library, guards on the stack, checked targets of indirect jumps, tables that are read-only once the program
# runs. Builds with sanitizers have stronger checks of their own.

option(ZANDIC_HARDEN "Build with the compiler's and the linker's protections" ON)

if(ZANDIC_HARDEN AND NOT ZANDIC_SANITIZE AND NOT ZANDIC_COVERAGE)
  include(CheckCXXCompilerFlag)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)

  # Checked sizes need the optimiser.
  add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")

  # Which there are depends on the processor; a compiler may only warn of one that it does not have.
  set(CMAKE_REQUIRED_FLAGS -Werror)
  foreach(flag IN ITEMS
      -fstack-protector-strong -fstack-clash-protection -fcf-protection=full -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "ZANDIC_HAS${flag}" has)
    check_cxx_compiler_flag(${flag} ${has})
    if(${has})
      add_compile_options(${flag})
    endif()
  endforeach()
  unset(CMAKE_REQUIRED_FLAGS)

  add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
endif()
