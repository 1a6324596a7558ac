/*
 * The version of the headers with which a program is compiled. The library exports no version: use
 * pkg-config, CMake or the package manager to find out which one is installed; see docs/compatibility.md.
 */
#ifndef OSTREL_VERSION_H
#define OSTREL_VERSION_H

/* The build reads the version of the project from these three lines. */
#define OSTREL_CHECK_VERSION_MAJOR 0
#define OSTREL_CHECK_VERSION_MINOR 1
#define OSTREL_CHECK_VERSION_PATCH 0

/*
 * OSTREL_CHECK_VERSION_AT_LEAST: true in #if if the headers have the given version or a later one.
 */
#define OSTREL_CHECK_VERSION_AT_LEAST(major, minor, patch)                              \
    (OSTREL_CHECK_VERSION_MAJOR > (major) ||                                            \
     (OSTREL_CHECK_VERSION_MAJOR == (major) && OSTREL_CHECK_VERSION_MINOR > (minor)) || \
     (OSTREL_CHECK_VERSION_MAJOR == (major) && OSTREL_CHECK_VERSION_MINOR == (minor) && \
      OSTREL_CHECK_VERSION_PATCH >= (patch)))

#endif
