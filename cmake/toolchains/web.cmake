# WebAssembly for browsers and Node, with clang and Debian's C and C++ libraries for WASI
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_C_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
# A linked program cannot run without its host, so CMake only compiles its test programs.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
