# GoogleTest is built from the sources that Debian's package `googletest` installs, so that one
# recipe serves plain, sanitized and cross builds.
set(SIFTER_GOOGLETEST_DIR
    /usr/src/googletest
    CACHE PATH "Folder with the sources of GoogleTest")
set(INSTALL_GTEST OFF)
add_subdirectory("${SIFTER_GOOGLETEST_DIR}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL
                 SYSTEM)
include(GoogleTest)

# The tests in the folder <name>, as one program <name>_tests: every .cpp file there, linked with
# the given targets. Nothing while the folder holds no test.
#   add_sifter_test(<name> [target...])
function(add_sifter_test name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp")
  if(NOT sources)
    return()
  endif()
  add_executable(${name}_tests ${sources})
  target_link_libraries(${name}_tests PRIVATE sifter_flags ${ARGN} sifter_test_headers
                                              GTest::gtest_main)
  gtest_discover_tests(${name}_tests TEST_PREFIX "${name}: " DISCOVERY_MODE PRE_TEST
                       DISCOVERY_TIMEOUT 60)
endfunction()
