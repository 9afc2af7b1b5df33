set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(SIFTER_MINGW x86_64-w64-mingw32)
set(SIFTER_WINE_NAMES wine64 wine64-stable wine wine-stable)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
