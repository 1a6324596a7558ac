# Common settings for Debian's cross compilers. Before including this file, a toolchain file must set OSTREL_TRIPLET,
# the prefix of the names of the compiler's programs, and OSTREL_EMULATOR, which runs programs for the target.
set(CMAKE_SYSTEM_NAME Linux)
string(REGEX REPLACE "-.*" "" CMAKE_SYSTEM_PROCESSOR ${OSTREL_TRIPLET})

set(CMAKE_C_COMPILER ${OSTREL_TRIPLET}-gcc)
set(CMAKE_CXX_COMPILER ${OSTREL_TRIPLET}-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR ${OSTREL_EMULATOR} -L /usr/${OSTREL_TRIPLET})

set(CMAKE_FIND_ROOT_PATH /usr/${OSTREL_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
