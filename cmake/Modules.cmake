# How a layer of the library becomes an object library, and what the whole links to.

# The precompiled header is built once, here, for every target that is compiled with the project's own flags: it is large,
# and each copy takes as long as a dozen sources.
file(WRITE ${CMAKE_BINARY_DIR}/pch.cpp.new "")
file(COPY_FILE ${CMAKE_BINARY_DIR}/pch.cpp.new ${CMAKE_BINARY_DIR}/pch.cpp ONLY_IF_DIFFERENT)
add_library(knav_pch OBJECT ${CMAKE_BINARY_DIR}/pch.cpp)
target_link_libraries(knav_pch PRIVATE knav_build)
target_include_directories(knav_pch PRIVATE ${CMAKE_SOURCE_DIR}/host)
target_precompile_headers(knav_pch PRIVATE ${CMAKE_SOURCE_DIR}/cmake/pch.h)

set(KNAV_SYSTEM_LIBRARIES comctl32 ole32 oleaut32 uuid shell32 shlwapi uxtheme gdi32 gdiplus advapi32 mpr oleacc wininet urlmon)

# knav_sources(OUT folder...): every .cpp of the folders.
function(knav_sources out)
  set(all)
  foreach(folder ${ARGN})
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    list(APPEND all ${found})
  endforeach()
  set(${out} ${all} PARENT_SCOPE)
endfunction()

# knav_layer(NAME SOURCES folder... LINKS lower-layer...)
function(knav_layer name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  knav_sources(sources ${arg_SOURCES})
  if(NOT sources)
    add_library(knav_${name} INTERFACE)
    target_link_libraries(knav_${name} INTERFACE ${arg_LINKS})
    return()
  endif()
  add_library(knav_${name} OBJECT ${sources})
  target_compile_definitions(knav_${name} PUBLIC KNAV_BUILDING)
  target_include_directories(knav_${name} PUBLIC ${CMAKE_SOURCE_DIR}/include ${CMAKE_SOURCE_DIR})
  target_link_libraries(knav_${name} PUBLIC ${arg_LINKS})
  target_precompile_headers(knav_${name} REUSE_FROM knav_pch)
endfunction()

# knav_layer_objects(OUT layer...): the objects of those layers that have sources.
function(knav_layer_objects out)
  set(all)
  foreach(layer ${ARGN})
    get_target_property(type knav_${layer} TYPE)
    if(type STREQUAL OBJECT_LIBRARY)
      list(APPEND all $<TARGET_OBJECTS:knav_${layer}>)
    endif()
  endforeach()
  set(${out} ${all} PARENT_SCOPE)
endfunction()

# knav_mapped(TARGET): a module whose sections stand in the file as they do in memory. A loader that can map nothing smaller
# than a page would read them into private memory of every host.
function(knav_mapped target)
  target_link_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wl,--file-alignment=4096>)
endfunction()

# knav_shipped(TARGET): a module that is installed carries no symbol table in a release build.
function(knav_shipped target)
  target_link_options(${target} PRIVATE $<$<CONFIG:Release>:-s>)
  knav_mapped(${target})
endfunction()

# knav_subdirectory(FOLDER): a part of the tree that has a build file.
macro(knav_subdirectory folder)
  if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/CMakeLists.txt)
    add_subdirectory(${folder})
  endif()
endmacro()
