// Mutator makes new inputs out of others, at random and the same ones at every run.
#ifndef OSTREL_ORACLE_MUTATOR_H
#define OSTREL_ORACLE_MUTATOR_H

#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::oracle {

class Mutator {
 public:
    // seeds must not be empty.
    Mutator(std::vector<std::string> seeds, std::uint64_t seed);

    // next gives a seed that was changed in some places. It holds until the next one.
    const std::string& next();

    // This one changes a little of what is given, or nothing.
    const std::string& next(const std::string& from);

 private:
    std::size_t below(std::size_t bound);
    void change();
    void replace(std::size_t begin, std::size_t size, const std::string& with);
    void change_number();

    std::vector<std::string> seeds_;
    std::vector<std::string> fields_;  // of all seeds
    std::string input_;
    std::uint64_t state_;
};

}  // namespace ostrel::oracle

#endif
