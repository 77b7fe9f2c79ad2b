# Flags that every target of the project is built with.
option(KNAV_BUILD_TESTS "Build the tests and benchmarks" ON)
option(KNAV_COVERAGE "Instrument for coverage" OFF)
option(KNAV_CHECKED "Stop the program at undefined behaviour and at a misused container" OFF)

add_library(knav_build INTERFACE)
target_compile_definitions(knav_build INTERFACE UNICODE _UNICODE NOMINMAX STRICT _WIN32_WINNT=0x0A00)
target_compile_options(knav_build INTERFACE
  $<BUILD_INTERFACE:-Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Wimplicit-fallthrough
  -Werror -finput-charset=UTF-8 -fno-strict-aliasing>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Those that are off report the standard library's own string code once it is inlined.
  target_compile_options(knav_build INTERFACE
    $<BUILD_INTERFACE:-Wcast-function-type -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread>)
else()
  # The system's interfaces declare their methods as not throwing; the tests' own objects throw on purpose.
  target_compile_options(knav_build INTERFACE $<BUILD_INTERFACE:-Wno-microsoft>)
endif()

# The same sources give the same bytes: no time stamps, no build paths, no name-derived image base.
target_compile_options(knav_build INTERFACE $<BUILD_INTERFACE:-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=>)
target_link_options(knav_build INTERFACE
  $<BUILD_INTERFACE:-static;-static-libgcc;-static-libstdc++;-Wl,--no-insert-timestamp>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_link_options(knav_build INTERFACE $<BUILD_INTERFACE:-Wl,--disable-auto-image-base>)
endif()

if(KNAV_CHECKED)
  # DWARF 4: the last version that Wine's debugger reads.
  target_compile_definitions(knav_build INTERFACE $<BUILD_INTERFACE:_GLIBCXX_ASSERTIONS>)
  target_compile_options(knav_build INTERFACE
    $<BUILD_INTERFACE:-gdwarf-4 -fsanitize=undefined -fsanitize-undefined-trap-on-error -fstack-protector-strong>)
  target_link_options(knav_build INTERFACE $<BUILD_INTERFACE:-fstack-protector-strong>)
endif()
if(KNAV_COVERAGE)
  target_compile_options(knav_build INTERFACE $<BUILD_INTERFACE:--coverage -fprofile-update=atomic>)
  target_link_options(knav_build INTERFACE $<BUILD_INTERFACE:--coverage>)
endif()
