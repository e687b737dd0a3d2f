# Flags that every own target carries, as one interface target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_WINDOWS_EXPORT_ALL_SYMBOLS ON)

# Programs, the host library and the module lie side by side in the build tree, as they do when installed.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}/zwtcal;$ORIGIN")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(zwt_flags INTERFACE)
target_include_directories(zwt_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
# Contraction would fuse a product and a sum where the compiler sees fit: other last digits in every build.
target_compile_options(zwt_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Werror
  -ffp-contract=off -fno-fast-math)

if(ZWT_SANITIZE)
  target_compile_options(zwt_flags INTERFACE
    -fsanitize=${ZWT_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
  target_link_options(zwt_flags INTERFACE -fsanitize=${ZWT_SANITIZE})
  # The instrumentation makes g++ see uninitialized members in the standard library's regular expressions; the other
  # builds keep the warning.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(zwt_flags INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(ZWT_COVERAGE)
  target_compile_options(zwt_flags INTERFACE --coverage -O0)
  target_link_options(zwt_flags INTERFACE --coverage)
endif()
