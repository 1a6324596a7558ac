// Conditions: tests that tell which condition of a rule a refused value has failed, and where.
//
// They say only what is certain: each one follows its rule step by step, and the vectors hold them to it. A
// byte is counted from 1. The number behind a name is that of the argument, from 0.
#ifndef OSTREL_CATALOGUE_CONDITIONS_H
#define OSTREL_CATALOGUE_CONDITIONS_H

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

// Fault is what is wrong with a text, in words that may be empty; nothing if nothing is.
using Fault = std::optional<std::string>;
using Rule = std::function<Fault(std::string_view text)>;

// text_of gives an argument that is a text; the empty text for NULL.
std::string_view text_of(std::span<const Value> values, std::size_t argument);

// number_of gives what atoi reads, or the number itself.
int number_of(std::span<const Value> values, std::size_t argument);

// byte_at names a byte of a text: byte 3 of 17 is "x".
std::string byte_at(std::string_view text, std::size_t index);

// quoted shows a text so that it can stand anywhere: cut, and with ? for a byte that is not printable.
std::string quoted(std::string_view text);

// in_words counts: 1 byte, 2 bytes.
std::string in_words(std::size_t count, std::string_view unit);

// The conditions of one argument.
Test is_null(std::size_t argument = 0);
Test is_empty(std::size_t argument = 0);
Test shorter_than(std::size_t bytes, std::size_t argument = 0);
Test longer_than(std::size_t bytes, std::size_t argument = 0);
Test outside(std::string_view set, std::size_t argument = 0);  // a byte that is not in the set
Test begins_outside(std::string_view set, std::size_t argument = 0);
Test outside_argument(std::size_t set, std::size_t argument);  // the set is an argument too
Test fails(const Rule& rule, std::size_t argument = 0);
Test none_of(std::initializer_list<std::string_view> keywords, std::size_t argument = 0);
Test when(const std::function<bool(std::span<const Value> values)>& holds);
Test both(const Test& first, const Test& second);

// The rules that texts are judged by. Each gives the first fault that decides.
Fault outside_of(std::string_view text, std::string_view set);
Fault ipv4_fault(std::string_view text);
Fault mac_fault(std::string_view text);
Fault station_fault(std::string_view text);
Fault domain_fault(std::string_view text);
Fault host_fault(std::string_view text);
Fault server_url_fault(std::string_view text);
Fault firmware_url_fault(std::string_view text);
Fault email_fault(std::string_view text);
Fault provisioning_fault(std::string_view text);
Fault date_time_fault(std::string_view text);
Fault switch_over_fault(std::string_view text);
Fault zone_offset_fault(std::string_view text);
Fault rates_fault(std::string_view text);
Fault router_fault(std::string_view text);
Fault offered_dns_fault(std::string_view text);
Fault pass_phrase_fault(std::string_view text);
Fault regulatory_fault(std::string_view text);

// The rules of several arguments.
Test range_fault();            // start, end and LAN address
Test reserved_subnet_fault();  // list and LAN address
Test reserved_repeat_fault();
Test subnet_fault();                      // reference and address
Test user_name_fault(int code);           // a PPP user name refused with that code
Test wep_key_fault(int code, int which);  // four keys; of two conditions of the code, the first or the second

}  // namespace ostrel::catalogue

#endif
