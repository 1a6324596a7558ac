// The result of a rule that has no specific result codes.
#ifndef OSTREL_SUPPORT_JUDGE_H
#define OSTREL_SUPPORT_JUDGE_H

#include <ostrel/result_code.h>

namespace ostrel {

constexpr int judge(bool is_valid) { return is_valid ? OSTREL_VALID : OSTREL_INVALID; }

}  // namespace ostrel

#endif
