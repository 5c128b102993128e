# Compile check for 32-bit Windows. Nothing built here is run: a 64-bit Wine starts no 32-bit program.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(mingw_triplet i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
