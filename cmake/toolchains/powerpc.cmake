# 32-bit big-endian PowerPC
set(OSTREL_TRIPLET powerpc-linux-gnu)
set(OSTREL_EMULATOR qemu-ppc)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
