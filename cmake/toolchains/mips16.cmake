# 32-bit little-endian MIPS, in the short encoding that many of these processors support
include(${CMAKE_CURRENT_LIST_DIR}/mipsel.cmake)
set(CMAKE_C_FLAGS_INIT "-mips16 -minterlink-mips16")
set(CMAKE_CXX_FLAGS_INIT "-mips16 -minterlink-mips16")
