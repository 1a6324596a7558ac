# 32-bit little-endian MIPS
set(OSTREL_TRIPLET mipsel-linux-gnu)
set(OSTREL_EMULATOR qemu-mipsel)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
