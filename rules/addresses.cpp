#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

const Set kOddDigits("13579BDFbdf");

std::vector<Step> mac_address(std::vector<Step> further)
{
    const Group digits = some(kHex, 2);
    const Group colon = printing(one(":"), unflushed("<byte>"));
    const Shape shape = {digits, colon, digits, colon, digits, colon, digits, colon, digits, colon, digits};
    return joined_steps({{refuse(-1, null(it)), refuse(-1, length_not({17}))},
                         std::move(further),
                         {refuse(-1, lacks_shape({shape}))}});
}

}  // namespace

std::vector<Check> addresses()
{
    return {
        check("TcmValidateIPAddress", {text("value", "an IPv4 address")},
              {refuse(-1, empty()), refuse(-1, outside(kIpv4)),
               refuse(-1, because("wrong_item_count", not_among(items(it, "."), {4}))),
               refuse(-1, shorter_than(7)), refuse(-1, longer_than(15)),
               for_each(list_of(it, '.', {}, "octet"), {refuse(-1, empty()), refuse(-1, above(255))})}),
        check("TcmValidateMACaddress", {text("value", "a MAC address")}, mac_address({})),
        check("isValidOrdinaryMACAddress", {text("value", "the MAC address of one station")},
              mac_address({refuse(-1, because("wrong_shape", outside(slice(it, 0, 2), kHex))),
                           refuse(-1, because("group_address", outside(slice(it, 1, 1), kHex - kOddDigits)),
                                  unflushed("Broadcasting MAC address, invalid.\n"))})),
    };
}

}  // namespace ostrel::rules
