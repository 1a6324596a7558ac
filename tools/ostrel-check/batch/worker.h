// Worker: the process that judges the lines of a chunk.
#ifndef OSTREL_TOOLS_BATCH_WORKER_H
#define OSTREL_TOOLS_BATCH_WORKER_H

#include <string>
#include <vector>

#include "batch/arena.h"
#include "system/process.h"
#include "write/render.h"

namespace ostrel::tool {

// A worker stops when it has written so much, and leaves it to the supervisor to take what is there. Within a gateway it
// stops later, so that what was taken mostly ends where a batch can go on.
inline constexpr std::size_t kEnoughOutput = std::size_t{4} << 20;
inline constexpr std::size_t kMostOutput = 8 * kEnoughOutput;

// run_worker serves until its supervisor closes the pipe of orders: for each byte that comes it judges a part
// of what the arena holds, from the current progress on, and answers with a byte.
[[noreturn]] void run_worker(Arena& arena, const Style& style, const Reading& reading,
                             const std::vector<std::string>& files, const Descriptor& orders,
                             const Descriptor& answers);

}  // namespace ostrel::tool

#endif
