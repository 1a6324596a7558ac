// A /var of this process's own, for the list of channels, which is a file of one fixed name there.
#ifndef OSTREL_TESTS_SUPPORT_OWN_VAR_H
#define OSTREL_TESTS_SUPPORT_OWN_VAR_H

namespace ostrel::tests {

constexpr char kChannelList[] = "/var/hnapwl0chlist";

// can_list_channels tells whether the list can be written. The first call moves this process, and the children
// that it starts from then on, to a mount namespace in which /var is a folder of its own with the same folders
// in it. Where the system allows no such namespace, /var stays everybody's. To be called before there is a second
// thread.
bool can_list_channels();

}  // namespace ostrel::tests

#endif
