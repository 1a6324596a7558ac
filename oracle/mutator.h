// Derives random inputs from seeds. Two Mutators with the same constructor arguments return the same inputs.
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

    // next returns a seed with one to four changes. The reference is valid until the next call.
    const std::string& next();

    // This overload returns a copy of from with at most two changes.
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
