# musl, on the processor of this machine. Debian has a compiler driver for C alone: C++ is compiled with musl's headers
# in the place of glibc's, and what is linked, is linked by the C driver.
set(CMAKE_C_COMPILER musl-gcc)
set(CMAKE_CXX_COMPILER g++)
# A program in C++ could not be linked.
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
    # The C++ library's headers, which are those for glibc, ask for its version.
    "'-D__GLIBC_PREREQ(major,minor)=0'")
