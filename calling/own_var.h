// A private /var for this process, because the library reads the channel list from a fixed path in /var.
#ifndef OSTREL_CALLING_OWN_VAR_H
#define OSTREL_CALLING_OWN_VAR_H

namespace ostrel::calling {

inline constexpr char kChannelFolder[] = "/var";
inline constexpr char kChannelList[] = "/var/hnapwl0chlist";

// move_to_own_var moves this process and its later children to a mount namespace in which /var is a private
// folder with the same contents. If the system does not allow that, /var stays shared. It returns whether
// /var is writable. Call it before starting a second thread.
bool move_to_own_var();

// can_list_channels returns whether the channel list can be written, to a private /var if possible and
// otherwise to the shared one. The first call moves this process to its private /var.
bool can_list_channels();

}  // namespace ostrel::calling

#endif
