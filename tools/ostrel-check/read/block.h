// A block of bytes that are examined together.
#ifndef OSTREL_TOOLS_READ_BLOCK_H
#define OSTREL_TOOLS_READ_BLOCK_H

namespace ostrel::tool {

// The compiler uses the processor's vector instructions for a block, if there are any.
using Block = unsigned char __attribute__((vector_size(16)));

}  // namespace ostrel::tool

#endif
