/*
 * The version of the headers that a program is compiled with. The library exports no version: ask
 * pkg-config, CMake or the package manager which one is installed, see docs/compatibility.md.
 */
#ifndef OSTREL_VERSION_H
#define OSTREL_VERSION_H

/* The build reads the version of the project from these three lines. */
#define OSTREL_CHECK_VERSION_MAJOR 0
#define OSTREL_CHECK_VERSION_MINOR 1
#define OSTREL_CHECK_VERSION_PATCH 0

/*
 * OSTREL_CHECK_VERSION_AT_LEAST: true in #if for headers of that version or a later one.
 */
#define OSTREL_CHECK_VERSION_AT_LEAST(major, minor, patch)                              \
    (OSTREL_CHECK_VERSION_MAJOR > (major) ||                                            \
     (OSTREL_CHECK_VERSION_MAJOR == (major) && OSTREL_CHECK_VERSION_MINOR > (minor)) || \
     (OSTREL_CHECK_VERSION_MAJOR == (major) && OSTREL_CHECK_VERSION_MINOR == (minor) && \
      OSTREL_CHECK_VERSION_PATCH >= (patch)))

#endif
