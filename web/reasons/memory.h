// Memory: what is needed only while the package is built leaves nothing in the module.
#ifndef OSTREL_WEB_REASONS_MEMORY_H
#define OSTREL_WEB_REASONS_MEMORY_H

namespace ostrel::web {

// From begin_building to end_building what is allocated is in a region of its own, and stays there.
void begin_building();
void end_building();

// clear_building clears the region. Nothing that is in it may be used any more.
void clear_building();

}  // namespace ostrel::web

#endif
