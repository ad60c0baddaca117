# What the package is compiled and linked with, so that an overrun of memory ends the program instead of
# steering it. scripts/hardening.sh checks the files of a built package for each of these.
#
#   -D_FORTIFY_SOURCE=2        copies and prints into memory of a known size are checked
#   -fstack-protector-strong   a function with a buffer checks its frame before it returns
#   -fstack-clash-protection   a large frame touches each page of the stack
#   -fcf-protection            indirect jumps end at marked places, on processors that check it
#   PIE                        programs are loaded at any address, as libraries are
#   relro, now                 all functions are found at load, and their table is read-only from then on
#   noexecstack                no code on the stack
include_guard(GLOBAL)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)
if(NOT CMAKE_CXX_LINK_PIE_SUPPORTED)
  message(FATAL_ERROR "The package wants programs that are loaded at any address.")
endif()
add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|i.86")
  add_compile_options(-fcf-protection)
endif()
add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
