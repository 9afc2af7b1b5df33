# GoogleTest is built from the sources that Debian's package `googletest` installs, so that one
# recipe serves plain, sanitized and cross builds.
set(SIFTER_GOOGLETEST_DIR
    /usr/src/googletest
    CACHE PATH "Folder with the sources of GoogleTest")
set(INSTALL_GTEST OFF)
add_subdirectory("${SIFTER_GOOGLETEST_DIR}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL
                 SYSTEM)
include(GoogleTest)

# There are many tests, and the time of a build goes into them. They do without the last bit of speed
# and, but for the lines of backtraces, without what a debugger needs. A precompiled header saves no
# more than this, and g++ 12 warns about its own std::string behind one.
add_library(sifter_test_flags INTERFACE)
target_compile_options(
  sifter_test_flags
  INTERFACE $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<CONFIG:Release,RelWithDebInfo>>:-O1>)
if(NOT WIN32)
  target_compile_options(sifter_test_flags INTERFACE -g1)
endif()

# Each Windows program leaves GoogleTest's report here, under the name of its ctest test.
set(SIFTER_TEST_REPORTS "${PROJECT_BINARY_DIR}/test-reports")

# The tests in the folder <name>, as one program <name>_tests: every .cpp file there, linked with
# the given targets; on Windows with the folder's resources. Nothing while the folder holds no test.
#   add_sifter_test(<name> [target...])
#
# Elsewhere ctest knows every single test. Starting a Windows program costs more than most tests do,
# so there it knows the program, and the program's report tells the tests.
function(add_sifter_test name)
  add_sifter_program(${name}_tests ${name} ${ARGN} sifter_test_headers sifter_test_flags
                     GTest::gtest_main)
  if(NOT TARGET ${name}_tests)
    return()
  endif()
  if(WIN32)
    add_windows_test(${name} ${name}_tests "-*At144Dpi*")
  else()
    gtest_discover_tests(${name}_tests TEST_PREFIX "${name}: " DISCOVERY_MODE PRE_TEST
                         DISCOVERY_TIMEOUT 60)
  endif()
endfunction()

# The tests of a program that the filter lets pass, as one ctest test.
function(add_windows_test name program filter)
  file(MAKE_DIRECTORY "${SIFTER_TEST_REPORTS}")
  # A path of this machine's would be a relative one for the program.
  add_test(
    NAME ${name}
    COMMAND ${program} --gtest_brief=1 "--gtest_filter=${filter}"
            "--gtest_output=xml:test-reports/${name}.xml"
    WORKING_DIRECTORY "${PROJECT_BINARY_DIR}")
  set_tests_properties(${name} PROPERTIES TIMEOUT 900)
endfunction()
