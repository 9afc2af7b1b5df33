# A compiler cache is used where there is one; a launcher given on the command line wins.
find_program(SIFTER_CCACHE ccache)
mark_as_advanced(SIFTER_CCACHE)
if(SIFTER_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${SIFTER_CCACHE}")
endif()
