// Caller passes values to a function and returns the values that the function writes. Each argument adjoins
// an unreadable page.
#ifndef OSTREL_CALLING_CALLER_H
#define OSTREL_CALLING_CALLER_H

#include <array>
#include <cstddef>
#include <vector>

#include "catalogue/catalogue.h"

namespace ostrel::calling {

// Edge selects which end of each argument's memory adjoins an unreadable page.
enum class Edge { kEnd, kBegin };

// GuardedMemory is memory between two unreadable pages. It grows as needed and is reused.
class GuardedMemory {
 public:
    GuardedMemory() = default;
    GuardedMemory(const GuardedMemory&) = delete;
    GuardedMemory& operator=(const GuardedMemory&) = delete;
    ~GuardedMemory();

    // place returns memory that adjoins the unreadable page at the given edge. Earlier contents are lost.
    char* place(std::size_t size, Edge edge);

 private:
    void release();

    char* mapping_ = nullptr;
    std::size_t usable_ = 0;  // bytes between the two unreadable pages
};

// Written is an argument that the function may write to, with the value that it has after the call. The value
// is NULL for a number that was not written, and for a buffer that was NULL.
struct Written {
    const catalogue::Argument* argument;
    catalogue::Value value;
};

class Caller {
 public:
    explicit Caller(Edge edge = Edge::kEnd) : edge_(edge) {}

    // load accepts a value for each argument, or for each one that the function reads. It throws
    // std::invalid_argument with a message for the user if their number, a kind or a range is wrong.
    void load(const catalogue::Function& function, const std::vector<catalogue::Value>& values);

    int call() { return function_->invoke(raw_); }

    [[nodiscard]] std::vector<Written> written() const;

 private:
    [[nodiscard]] catalogue::Value held(std::size_t index) const;
    void load_argument(std::size_t index, const std::vector<catalogue::Value>& values);

    Edge edge_;
    const catalogue::Function* function_ = nullptr;
    std::array<GuardedMemory, 4> memory_;
    std::array<std::size_t, 4> capacity_{};
    std::vector<catalogue::Raw> raw_;
};

}  // namespace ostrel::calling

#endif
