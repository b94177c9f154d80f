# Link to tolvi_warnings with PRIVATE: our warnings are errors for us, never for those who build Tolvi in their own tree.
add_library(tolvi_warnings INTERFACE)
if(PROJECT_IS_TOP_LEVEL)
  target_compile_options(
    tolvi_warnings
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wconversion
              -Werror
              # GCC 12 sees overlaps in the standard library's own std::string code; 13 no longer does.
              $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
endif()
