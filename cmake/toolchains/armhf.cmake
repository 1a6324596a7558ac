# 32-bit ARM with floating-point registers
set(OSTREL_TRIPLET arm-linux-gnueabihf)
set(OSTREL_EMULATOR qemu-arm)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
