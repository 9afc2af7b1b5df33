set(CMAKE_SYSTEM_PROCESSOR i686)
set(SIFTER_MINGW i686-w64-mingw32)
set(SIFTER_BITS 32)
# The x87 registers would keep doubles wider than a double, and comparisons would differ from
# every other build. SSE needs an aligned stack, which callers on 32-bit Windows don't provide.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
