# 32-bit x86
set(OSTREL_TRIPLET i686-linux-gnu)
set(OSTREL_EMULATOR qemu-i386)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
