# What both Windows toolchains share; the caller has set SIFTER_MINGW to the name of the target
# and SIFTER_BITS to its bitness.
set(CMAKE_SYSTEM_NAME Windows)
# The `posix` flavour carries the C++ thread library. (GoogleTest's build asks for a C compiler.)
set(CMAKE_C_COMPILER ${SIFTER_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${SIFTER_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${SIFTER_MINGW}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${SIFTER_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs need nothing beside them but the system's own DLLs.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")

# Tests run where Wine is at hand, and only there.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tools/wine-run;${SIFTER_BITS}")
