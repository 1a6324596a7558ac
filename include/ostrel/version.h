/*
 * The version of the headers that a program is compiled with. The library does not export its version, so use
 * pkg-config, CMake or the package manager to find out which version is installed. See docs/compatibility.md.
 */
#ifndef OSTREL_VERSION_H
#define OSTREL_VERSION_H

/* The build reads the project's version from these three lines. */
#define OSTREL_CHECK_VERSION_MAJOR 0
#define OSTREL_CHECK_VERSION_MINOR 1
#define OSTREL_CHECK_VERSION_PATCH 0

/*
 * OSTREL_CHECK_VERSION_AT_LEAST: for use in #if; true if the headers are of the given version or a later one.
 */
#define OSTREL_CHECK_VERSION_AT_LEAST(major, minor, patch)                              \
    (OSTREL_CHECK_VERSION_MAJOR > (major) ||                                            \
     (OSTREL_CHECK_VERSION_MAJOR == (major) && OSTREL_CHECK_VERSION_MINOR > (minor)) || \
     (OSTREL_CHECK_VERSION_MAJOR == (major) && OSTREL_CHECK_VERSION_MINOR == (minor) && \
      OSTREL_CHECK_VERSION_PATCH >= (patch)))

#endif
