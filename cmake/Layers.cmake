# spacemgm_layer(<target> DIRS <folder>... [DEPS <target>...])
#
# One layer of the module: every .cpp below the given folders, compiled once
# into <target>_obj. <target> is a static archive of those objects that links
# the layers below it, so a test links only the layer it exercises and gets a
# correct link order for free; `spacemgm` bundles every layer's objects into
# one archive. The repository root is the public include root, so
# `#include "foundation/utilities.h"` works for every consumer. A layer with no
# sources yet is an interface library carrying only its usage requirements.
function(spacemgm_layer target)
  cmake_parse_arguments(ARG "" "" "DIRS;DEPS" ${ARGN})
  set(sources)
  foreach(dir IN LISTS ARG_DIRS)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.cpp")
    list(APPEND sources ${found})
  endforeach()
  if(sources)
    add_library(${target}_obj OBJECT ${sources})
    target_include_directories(${target}_obj PUBLIC
      "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
    target_link_libraries(${target}_obj PUBLIC ${ARG_DEPS})
    set_target_properties(${target}_obj PROPERTIES POSITION_INDEPENDENT_CODE ON)
    spacemgm_warnings(${target}_obj)

    add_library(${target} STATIC $<TARGET_OBJECTS:${target}_obj>)
    target_include_directories(${target} PUBLIC
      "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
    target_link_libraries(${target} PUBLIC ${ARG_DEPS})
    set_property(GLOBAL APPEND PROPERTY SPACEMGM_LAYER_OBJECTS "$<TARGET_OBJECTS:${target}_obj>")
  else()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE
      "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
    target_link_libraries(${target} INTERFACE ${ARG_DEPS})
  endif()
endfunction()
