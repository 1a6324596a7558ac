// A private /var for this process: the list of channels is a file there with a fixed name.
#ifndef OSTREL_CALLING_OWN_VAR_H
#define OSTREL_CALLING_OWN_VAR_H

namespace ostrel::calling {

inline constexpr char kChannelFolder[] = "/var";
inline constexpr char kChannelList[] = "/var/hnapwl0chlist";

// move_to_own_var moves this process, and the children that it starts afterwards, to a mount namespace in which /var
// is a private folder with the same files and folders. It returns whether /var is writable. If the system allows no
// such namespace, /var stays the shared one. Call it before starting a second thread.
bool move_to_own_var();

// can_list_channels returns whether the list can be written, to a private /var if possible and otherwise to the
// shared one. The first call moves this process.
bool can_list_channels();

}  // namespace ostrel::calling

#endif
