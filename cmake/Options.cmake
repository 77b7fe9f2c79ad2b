# Flags that every target of the project is built with.
option(KNAV_BUILD_TESTS "Build the tests and benchmarks" ON)
option(KNAV_COVERAGE "Instrument for coverage" OFF)

add_library(knav_build INTERFACE)
target_compile_definitions(knav_build INTERFACE UNICODE _UNICODE NOMINMAX STRICT _WIN32_WINNT=0x0A00)
target_compile_options(knav_build INTERFACE
  $<BUILD_INTERFACE:-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual=1 -Wcast-function-type
  -Wimplicit-fallthrough -Wnull-dereference -Werror -finput-charset=UTF-8>)
target_link_options(knav_build INTERFACE $<BUILD_INTERFACE:-static-libgcc -static-libstdc++ -static>)
