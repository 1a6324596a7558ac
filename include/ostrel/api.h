/* OSTREL_API marks the symbols that libostrel_check.so exports. */
#ifndef OSTREL_API_H
#define OSTREL_API_H

#ifdef __cplusplus
#define OSTREL_API extern "C" __attribute__((visibility("default")))
#else
#define OSTREL_API extern __attribute__((visibility("default")))
#endif

#endif
