# 64-bit ARM
set(OSTREL_TRIPLET aarch64-linux-gnu)
set(OSTREL_EMULATOR qemu-aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
