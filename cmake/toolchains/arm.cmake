# 32-bit ARM without floating-point registers (EABI)
set(OSTREL_TRIPLET arm-linux-gnueabi)
set(OSTREL_EMULATOR qemu-arm)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
