// Driver answers in place of the shell, the wireless driver's tool and the file of its channels: no program is run
// and no file is written.
#ifndef OSTREL_TESTS_RULES_DRIVER_H
#define OSTREL_TESTS_RULES_DRIVER_H

#include <vector>

namespace ostrel::tests {

// Driver lists these channels for as long as it lives. One at a time.
class Driver {
 public:
    explicit Driver(const std::vector<int>& channels);
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    ~Driver();

    // has_left_its_list tells whether the list was made and not deleted.
    [[nodiscard]] bool has_left_its_list() const;
};

}  // namespace ostrel::tests

#endif
