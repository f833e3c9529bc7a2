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

if(CLINORAMA_FUZZ)  # every library has to tell the fuzzer where it goes
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(CLINORAMA_SANITIZE OR CLINORAMA_FUZZ)
  # A real too large for an integer is undefined too, but "undefined" leaves it out.
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow)
  add_compile_options(${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(${sanitizers})
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
