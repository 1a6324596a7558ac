// Replaces the shell, the wireless driver's tool, and the file that contains the channel list. No program is
// run and no file is written.
#ifndef OSTREL_ORACLE_DRIVER_H
#define OSTREL_ORACLE_DRIVER_H

#include <cstdio>
#include <string>
#include <vector>

namespace ostrel::oracle {

// Driver lists the given channels while it exists. Only one Driver may exist at a time.
class Driver {
 public:
    explicit Driver(std::vector<int> channels);
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    ~Driver();

    // The replacements for the C library's functions call these functions for the list file.
    void write_list();
    std::FILE* open_list(const char* modes);
    void delete_list() { has_left_its_list_ = false; }

    // has_left_its_list returns whether the file was written and not deleted.
    [[nodiscard]] bool has_left_its_list() const { return has_left_its_list_; }

 private:
    std::vector<int> channels_;
    std::string content_;
    bool has_left_its_list_ = false;
};

}  // namespace ostrel::oracle

#endif
