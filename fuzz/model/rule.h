// Rule: what several models judge by, again without the library.
#ifndef OSTREL_FUZZ_MODEL_RULE_H
#define OSTREL_FUZZ_MODEL_RULE_H

#include <optional>
#include <string>
#include <string_view>

#include "fuzz/model/model.h"
#include "fuzz/model/text.h"

namespace ostrel::model {

// The groups that the registration functions of model.h are made of.
void add_host_names(Models& models);
void add_dates(Models& models);
void add_subnets(Models& models);
void add_names(Models& models);
void add_ppp(Models& models);
void add_lan_host(Models& models);
void add_lan_lists(Models& models);
void add_ports(Models& models);
void add_forwarding(Models& models);

// on_text makes a model of a rule for one text, which must not be NULL.
template <Answer (*Rule)(const std::string&)>
Answer on_text(Arguments arguments)
{
    return is_null(arguments[0]) ? undefined() : Rule(text(arguments[0]));
}

// on_texts makes a model of a rule for two texts, neither of which may be NULL.
template <Answer (*Rule)(const std::string&, const std::string&)>
Answer on_texts(Arguments arguments)
{
    if (is_null(arguments[0]) || is_null(arguments[1])) return undefined();
    return Rule(text(arguments[0]), text(arguments[1]));
}

namespace rule {

inline constexpr std::string_view kDigits = "0123456789";
inline constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
inline constexpr std::string_view kLettersAndDigits =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

// printable_ascii is every byte from the blank to "~"; printable_latin1 has those of 0xA1 to 0xFF besides.
const std::string& printable_ascii();
const std::string& printable_latin1();

// length_and_set gives 801 for a text below min bytes, 802 for one above max, 803 for a byte that is not in
// set, and 0. Lengths are signed: a minimum below 0 is always reached, a maximum below 0 never.
int length_and_set(int min, int max, std::string_view set, std::string_view value);

// refused is a code and the line that a check called name reports; message is what follows the name.
Answer refused(int code, std::string_view name, const std::string& message);

// followed prints what later prints, after what it printed itself, and has later's code.
Answer followed(const Answer& first, const Answer& later);

// equal_ignoring_case knows the case of ASCII letters only.
bool equal_ignoring_case(std::string_view a, std::string_view b);

// split gives the pieces between separators; one more than there are separators.
std::vector<std::string> split(std::string_view value, char separator);

// is_address: four numbers of 0 to 255 between dots, in 7 to 15 characters.
bool is_address(const std::string& value);

// is_host: a host name, or an address.
bool is_host(const std::string& value);

// is_server_url and is_firmware_url have no value where the port is no number that atoi defines.
std::optional<bool> is_server_url(const std::string& value);
std::optional<bool> is_firmware_url(const std::string& value);

bool day_fits(int year, unsigned month, int day);
bool is_date_time(const std::string& value);
bool is_switch_over(const std::string& value);
bool is_zone_offset(const std::string& value);

bool same_subnet(const std::string& reference, const std::string& address);
bool is_range(const std::string& start, const std::string& end, const std::string& lan);
int reserved_addresses(const std::string& list, const std::string& lan);
bool is_router(const std::string& address);
bool are_offered_servers(const std::string& list);

int description(const std::string& value);
int router_name(const std::string& value);

}  // namespace rule
}  // namespace ostrel::model

#endif
