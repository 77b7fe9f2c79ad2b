# Second compiler: clang for the same target, with the headers and libraries of mingw-w64 GCC, linked by lld (GNU ld
# does not take clang's exception tables).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(_triple x86_64-w64-mingw32)
execute_process(COMMAND ${_triple}-g++-posix -print-libgcc-file-name
  OUTPUT_VARIABLE _libgcc OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(_gcc ${_libgcc} DIRECTORY)

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET ${_triple})
set(CMAKE_CXX_COMPILER_TARGET ${_triple})
set(CMAKE_RC_COMPILER ${_triple}-windres)
set(CMAKE_RC_FLAGS_INIT "-c 65001")
# GCC keeps thread-local variables of its library its own way.
set(CMAKE_CXX_FLAGS_INIT "-femulated-tls -isystem ${_gcc}/include/c++ -isystem ${_gcc}/include/c++/${_triple}")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "")
set(_runtime "-Wl,--start-group -lstdc++ -lgcc_eh -lgcc -lwinpthread -lmingw32 -lmingwex -lmsvcrt -lkernel32 -Wl,--end-group")
foreach(_kind EXE SHARED MODULE)
  set(CMAKE_${_kind}_LINKER_FLAGS_INIT "-fuse-ld=lld -L${_gcc}")
endforeach()
# Behind what the platform file adds to the end of each link.
set(CMAKE_CXX_STANDARD_LIBRARIES "-lkernel32 -luser32 -lgdi32 -lshell32 -lole32 -loleaut32 -luuid -ladvapi32 ${_runtime}"
  CACHE STRING "")
set(CMAKE_FIND_ROOT_PATH /usr/${_triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/run-under-wine)
