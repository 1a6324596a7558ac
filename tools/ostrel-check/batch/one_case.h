// Judges one case as a batch would, to print its verdict in JSON.
#ifndef OSTREL_TOOLS_BATCH_ONE_CASE_H
#define OSTREL_TOOLS_BATCH_ONE_CASE_H

#include <span>
#include <string>

#include "batch/batch.h"
#include "catalogue/catalogue.h"

namespace ostrel::tool {

// judge_in_json prints the result that batch --stream would print, and returns the exit code.
int judge_in_json(const catalogue::Function& function, std::span<const std::string> words, Rules rules);

}  // namespace ostrel::tool

#endif
