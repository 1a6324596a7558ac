// The process that judges the records of a chunk.
#ifndef OSTREL_TOOLS_BATCH_WORKER_H
#define OSTREL_TOOLS_BATCH_WORKER_H

#include <string>
#include <vector>

#include "batch/arena.h"
#include "system/process.h"
#include "write/render.h"

namespace ostrel::tool {

// A worker pauses after kEnoughOutput bytes, so that the supervisor can take them. Within a gateway, it
// continues up to kMostOutput, because a batch can usually be resumed only between gateways.
inline constexpr std::size_t kEnoughOutput = std::size_t{4} << 20;
inline constexpr std::size_t kMostOutput = 8 * kEnoughOutput;

// run_worker runs until its supervisor closes the orders pipe. For each byte that it reads from this pipe, it
// judges more of the arena's input, starting at the current progress, and then answers with a byte.
[[noreturn]] void run_worker(Arena& arena, const Style& style, const Reading& reading,
                             const std::vector<std::string>& files, const Descriptor& orders,
                             const Descriptor& answers);

}  // namespace ostrel::tool

#endif
