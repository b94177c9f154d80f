# tolvi_library(TARGET NAME): the library Tolvi::NAME, static or shared as BUILD_SHARED_LIBS says. Shared, it exports what
# carries the macro of its api.h (tools/check_symbols.py compares that with the public headers).
function(tolvi_library target name)
  add_library(${target})
  add_library(Tolvi::${name} ALIAS ${target})
  set_target_properties(
    ${target}
    PROPERTIES EXPORT_NAME ${name}
               OUTPUT_NAME ${target}
               VERSION ${PROJECT_VERSION}
               SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
               POSITION_INDEPENDENT_CODE ON
               CXX_VISIBILITY_PRESET hidden
               VISIBILITY_INLINES_HIDDEN ON
               VERIFY_INTERFACE_HEADER_SETS ON)
  # Elsewhere the macros are the same in both: what a static build has compiled serves a shared one (see ccache).
  if(NOT WIN32)
    set_target_properties(${target} PROPERTIES DEFINE_SYMBOL "")
  endif()
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tolvi_warnings>)
  get_target_property(type ${target} TYPE)
  if(WIN32 AND type STREQUAL "STATIC_LIBRARY")
    target_compile_definitions(${target} PUBLIC TOLVI_STATIC)
  endif()
endfunction()

# tolvi_whole_library(TARGET LIBRARIES...): TARGET_whole is the same with its private parts, for what is built together
# with it: tests and programs that reach behind the public headers. LIBRARIES are what it links to. It is always static;
# so that a program has each library once, it links to the whole ones of Tolvi or to none.
function(tolvi_whole_library target)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "STATIC_LIBRARY")
    add_library(${target}_whole ALIAS ${target})
    return()
  endif()
  add_library(${target}_whole STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:${target}>)
  set_target_properties(${target}_whole PROPERTIES LINKER_LANGUAGE CXX)
  target_compile_features(${target}_whole PUBLIC cxx_std_20)
  target_include_directories(${target}_whole PUBLIC ${PROJECT_BINARY_DIR}/include)
  target_link_libraries(${target}_whole PUBLIC ${ARGN})
endfunction()
