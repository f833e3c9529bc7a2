# One interface target carries the warnings, so that every library and program has the same.
add_library(clinorama_warnings INTERFACE)
target_compile_options(clinorama_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused -Wdouble-promotion -Wformat=2
  $<$<BOOL:${CLINORAMA_WERROR}>:-Werror>)
# g++ 12 takes harmless sums of texts for overlapping copies once it has optimised them.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(clinorama_warnings INTERFACE -Wno-restrict)
endif()
