# A room is one folder below src and one target. USES names the other rooms that it may include; tests/rules
# reads these lists and compares them with the includes.
#
#   zwt_room(data KIND module USES frame/containers host/text SOURCES a.cpp LIBS pugixml::pugixml)
#
# KIND headers: header-only. KIND host: becomes part of the one shared host library. KIND module: a static
# archive, linked into the loadable module and into the tests of its calculations.

function(zwt_room_target out room)
  string(REPLACE "/" "_" name ${room})
  set(${out} zwt_${name} PARENT_SCOPE)
endfunction()

function(zwt_room room)
  cmake_parse_arguments(ROOM "" "KIND" "USES;SOURCES;LIBS" ${ARGN})
  zwt_room_target(target ${room})
  if(ROOM_KIND STREQUAL "headers")
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  elseif(ROOM_KIND STREQUAL "host")
    add_library(${target} OBJECT ${ROOM_SOURCES})
    set_property(GLOBAL APPEND PROPERTY ZWT_HOST_ROOMS ${target})
    set(scope PUBLIC)
  elseif(ROOM_KIND STREQUAL "module")
    add_library(${target} STATIC ${ROOM_SOURCES})
    target_link_libraries(${target} PUBLIC zwthost)
    set_property(GLOBAL APPEND PROPERTY ZWT_MODULE_ROOMS ${target})
    set(scope PUBLIC)
  else()
    message(FATAL_ERROR "room ${room}: KIND must be headers, host or module")
  endif()
  target_link_libraries(${target} ${scope} zwt_flags ${ROOM_LIBS})
  foreach(used IN LISTS ROOM_USES)
    zwt_room_target(usedTarget ${used})
    if(ROOM_KIND STREQUAL "module" AND used MATCHES "^host/")
      continue()  # comes with zwthost
    endif()
    target_link_libraries(${target} ${scope} ${usedTarget})
  endforeach()
endfunction()

# zwt_test(name SOURCES a_test.cpp LIBS zwt_supply): one test program, every TEST a CTest case.
function(zwt_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(test_${name} ${TEST_SOURCES})
  target_link_libraries(test_${name} PRIVATE zwt_flags ${TEST_LIBS} GTest::gmock GTest::gtest_main)
  target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(test_${name} PRIVATE
    ZWT_SOURCE_DIR="${CMAKE_SOURCE_DIR}" ZWT_BINARY_DIR="${CMAKE_BINARY_DIR}")
  gtest_discover_tests(test_${name} DISCOVERY_MODE PRE_TEST TEST_PREFIX "${name}.")
endfunction()

# zwt_bench(name SOURCES ... LIBS ...): one Google Benchmark program.
function(zwt_bench name)
  cmake_parse_arguments(BENCH "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(bench_${name} ${BENCH_SOURCES})
  target_link_libraries(bench_${name} PRIVATE zwt_flags ${BENCH_LIBS} benchmark::benchmark_main)
  target_compile_definitions(bench_${name} PRIVATE
    ZWT_SOURCE_DIR="${CMAKE_SOURCE_DIR}" ZWT_BINARY_DIR="${CMAKE_BINARY_DIR}")
endfunction()

# zwt_fuzz(name SOURCES ... LIBS ...): one libFuzzer program; its seeds lie in fuzz/seeds/<name>.
function(zwt_fuzz name)
  cmake_parse_arguments(FUZZ "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(fuzz_${name} ${FUZZ_SOURCES})
  target_link_libraries(fuzz_${name} PRIVATE zwt_flags ${FUZZ_LIBS})
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
  set_property(GLOBAL APPEND PROPERTY ZWT_FUZZERS fuzz_${name})
endfunction()
