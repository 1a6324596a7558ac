// Allocates the data that is needed only when the package is built, so that none of it remains in the module.
#ifndef OSTREL_WEB_REASONS_MEMORY_H
#define OSTREL_WEB_REASONS_MEMORY_H

namespace ostrel::web {

// Between begin_building and end_building, memory is allocated in a separate region and is not freed.
void begin_building();
void end_building();

// clear_building clears and frees the region.
void clear_building();

}  // namespace ostrel::web

#endif
