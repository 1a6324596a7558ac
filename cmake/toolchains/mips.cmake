# 32-bit big-endian MIPS
set(OSTREL_TRIPLET mips-linux-gnu)
set(OSTREL_EMULATOR qemu-mips)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
