# 64-bit RISC-V
set(OSTREL_TRIPLET riscv64-linux-gnu)
set(OSTREL_EMULATOR qemu-riscv64)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
# With -Os, even the smallest inline functions of the C++ library would be called through a table of addresses, each of
# which needs a relocation.
set(CMAKE_CXX_FLAGS_INIT "--param max-inline-insns-size=2")
