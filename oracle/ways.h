// The functions that follow reasons. Only the table in advice.cpp uses them.
#ifndef OSTREL_ORACLE_WAYS_H
#define OSTREL_ORACLE_WAYS_H

#include "oracle/advice.h"

namespace ostrel::oracle {

// For reasons about strings.
void cut(const Refusal& refusal, Advice& advice);
void fill(const Refusal& refusal, Advice& advice);
void take_length(const Refusal& refusal, Advice& advice);
void take_other_length(const Refusal& refusal, Advice& advice);
void empty(const Refusal& refusal, Advice& advice);
void give_text(const Refusal& refusal, Advice& advice);
void give_what_is_null(const Refusal& refusal, Advice& advice);
void replace_byte(const Refusal& refusal, Advice& advice);
void replace_byte_or_end(const Refusal& refusal, Advice& advice);
void continue_text(const Refusal& refusal, Advice& advice);
void end_text(const Refusal& refusal, Advice& advice);
void take_word(const Refusal& refusal, Advice& advice);
void leave_word(const Refusal& refusal, Advice& advice);
void begin_with(const Refusal& refusal, Advice& advice);
void begin_otherwise(const Refusal& refusal, Advice& advice);
void add_part(const Refusal& refusal, Advice& advice);
void name_with_letter(const Refusal& refusal, Advice& advice);
void leave_colons(const Refusal& refusal, Advice& advice);

// For reasons about lists.
void take_unlisted(const Refusal& refusal, Advice& advice);
void make_different(const Refusal& refusal, Advice& advice);
void begin_like_subnet(const Refusal& refusal, Advice& advice);
void take_parts(const Refusal& refusal, Advice& advice);
void take_items(const Refusal& refusal, Advice& advice);
void shorten_list(const Refusal& refusal, Advice& advice);
void take_second_server(const Refusal& refusal, Advice& advice);
void take_other_server(const Refusal& refusal, Advice& advice);
void give_key(const Refusal& refusal, Advice& advice);

// For reasons about numbers.
void raise_number(const Refusal& refusal, Advice& advice);
void lower_number(const Refusal& refusal, Advice& advice);
void take_number(const Refusal& refusal, Advice& advice);
void leave_number(const Refusal& refusal, Advice& advice);
void go_into_range(const Refusal& refusal, Advice& advice);
void leave_range(const Refusal& refusal, Advice& advice);
void fit_int(const Refusal& refusal, Advice& advice);
void any_number(const Refusal& refusal, Advice& advice);

}  // namespace ostrel::oracle

#endif
