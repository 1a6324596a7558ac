// A /var of this process's own, for the list of channels, which is a file of one fixed name there.
#ifndef OSTREL_CALLING_OWN_VAR_H
#define OSTREL_CALLING_OWN_VAR_H

namespace ostrel::calling {

inline constexpr char kChannelFolder[] = "/var";
inline constexpr char kChannelList[] = "/var/hnapwl0chlist";

// move_to_own_var moves this process, and the children that it starts from then on, to a mount namespace in which /var
// is a folder of its own with the same files and folders in it. It says whether /var can be written to; where the
// system allows no such namespace, /var stays everybody's. To be called before there is a second thread.
bool move_to_own_var();

// can_list_channels tells whether the list can be written to a /var of this process's own, or else to everybody's. The
// first call moves this process there.
bool can_list_channels();

}  // namespace ostrel::calling

#endif
