// Prints report lines. No other module formats or flushes them. Each message is printed by one output call,
// so that the lines of concurrent callers are not interleaved.
#ifndef OSTREL_SUPPORT_REPORT_H
#define OSTREL_SUPPORT_REPORT_H

namespace ostrel {

// refuse prints the report line, flushes every output stream and returns the code.
[[gnu::format(printf, 2, 3)]] int refuse(int code, const char* format, ...);

// inform prints the line and flushes every output stream.
[[gnu::format(printf, 1, 2)]] void inform(const char* format, ...);

// remark prints the line without flushing it; it is flushed with a later message.
[[gnu::format(printf, 1, 2)]] void remark(const char* format, ...);

}  // namespace ostrel

#endif
