// Memory: data that only the build of the package needs leaves no trace in the module.
#ifndef OSTREL_WEB_REASONS_MEMORY_H
#define OSTREL_WEB_REASONS_MEMORY_H

namespace ostrel::web {

// Between begin_building and end_building memory is allocated in a separate region and never freed.
void begin_building();
void end_building();

// clear_building clears the region, which must no longer be used.
void clear_building();

}  // namespace ostrel::web

#endif
