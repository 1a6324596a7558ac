# WebAssembly, for browsers and Node: clang, and the C and C++ libraries of Debian for WASI
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_C_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
# A linked program cannot run without the module that imports it.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
