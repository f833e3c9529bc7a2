# What holds for every optimised build, so that the program that is tested is the one that is
# packaged. The program does not tell in which folder it was built.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
                      -ffile-prefix-map=${PROJECT_BINARY_DIR}=./build)
  if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    # What Debian asks of programs: checks of the stack and of buffers, and tables of addresses that
    # cannot be written.
    add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    add_link_options(-Wl,-z,relro -Wl,-z,now)
  endif()
endif()
