set(CMAKE_SYSTEM_PROCESSOR i686)
set(SIFTER_MINGW i686-w64-mingw32)
set(SIFTER_BITS 32)
# The x87 registers would keep doubles wider than a double, and comparisons would differ from
# every other build. SSE needs an aligned stack, which callers on 32-bit Windows don't provide.
#
# With such a stack the compiler loses track of it in the part of a function that it moves away as
# seldom run: an error thrown there would find no handler and end the host. So nothing is moved away.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign -fno-reorder-blocks-and-partition")
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
