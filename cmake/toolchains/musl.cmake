# musl on this machine's processor. Debian has only a C compiler driver for it, so C++ is compiled with musl's headers
# in place of glibc's, and the C driver links.
set(CMAKE_C_COMPILER musl-gcc)
set(CMAKE_CXX_COMPILER g++)
# Linking a C++ program would fail, so CMake must not try.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

execute_process(COMMAND g++ -dumpversion OUTPUT_VARIABLE version OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND g++ -dumpmachine OUTPUT_VARIABLE machine OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND g++ -print-file-name=include OUTPUT_VARIABLE own OUTPUT_STRIP_TRAILING_WHITESPACE)
string(REPLACE "-gnu" "-musl" musl ${machine})
string(JOIN " " CMAKE_CXX_FLAGS_INIT
    -nostdinc
    -isystem /usr/include/c++/${version}
    -isystem /usr/include/${machine}/c++/${version}
    -isystem /usr/include/${musl}
    -isystem ${own}
    # The C++ library's headers were configured for glibc and test its version.
    "'-D__GLIBC_PREREQ(major,minor)=0'")
