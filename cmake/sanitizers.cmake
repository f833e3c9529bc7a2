# The address and undefined-behaviour sanitizers, for all that is built, and what a fuzzer needs.
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
