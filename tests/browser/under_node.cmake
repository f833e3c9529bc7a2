# The tests of values, in the build for a browser: Node.js runs them. The compiled GoogleTest of the
# system does not fit, so it is compiled here.
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)

foreach(folder base engine)
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h support/*.h)
  add_executable(${folder}_tests ${sources})
  target_link_libraries(${folder}_tests
    PRIVATE clinorama_${folder} gtest gtest_main clinorama_warnings)
  target_link_options(${folder}_tests
    PRIVATE -sENVIRONMENT=node -sSINGLE_FILE -sEXIT_RUNTIME -sALLOW_MEMORY_GROWTH)
  add_test(NAME ${folder}_tests COMMAND ${folder}_tests)
endforeach()
