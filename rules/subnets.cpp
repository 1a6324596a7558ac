#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

Expression last_octet(const char* address) { return called("the last octet", after_last(address, ".")); }

std::vector<Step> judge_last_octet(const char* address)
{
    return {refuse(-1, below(last_octet(address), 1)), refuse(-1, above(last_octet(address), 254))};
}

// If only the last octet of an address is wrong, the reason states the limit of that octet, which is 254.
Step refuse_highest_octet(const char* address)
{
    return when(all_of({not_(outside(address, kIpv4)), among(items(address, "."), {4}),
                        not_(longer_than(address, 15)), above(last_octet(address), 255)}),
                {refuse(-1, above(last_octet(address), 254))});
}

Step judge_subnet(const char* address)
{
    return refuse(-1, refused_by("isInSameSubnet", {"lanAddress", address}));
}

// An item counts as repeated if it occurs anywhere in the rest of the list, provided that the rest is as long
// as the item, or has a comma at the offset that equals the item's length.
Condition repeats_item()
{
    return all_of({not_(last_item()),
                   any_of({equal(length("rest"), length("item")),
                           equal(slice("rest", length("item"), 1), literal(","))}),
                   because("repeated_item", contains("rest", "item"))});
}

}  // namespace

std::vector<Check> subnets()
{
    return {
        check("isInSameSubnet",
              {text("reference", "an address of the subnet"), text("address", "the address to compare")},
              {refuse(-1, because("another_subnet",
                                  not_equal(slice("address", 0, length(through_last("reference", "."))),
                                            through_last("reference", "."))))}),
        check("TcmValidateAddressRange",
              {text("startAddress", "the first address of the pool"),
               text("endAddress", "the last address of the pool"),
               text("lanAddress", "the gateway's own address on the LAN")},
              joined_steps({{refuse_highest_octet("startAddress"),
                             refuse(-1, refused_by("TcmValidateIPAddress", {"startAddress"})),
                             refuse_highest_octet("endAddress"),
                             refuse(-1, refused_by("TcmValidateIPAddress", {"endAddress"})),
                             refuse(-1, not_(contains("lanAddress", literal(".")))),
                             judge_subnet("startAddress"), judge_subnet("endAddress")},
                            judge_last_octet("startAddress"),
                            judge_last_octet("endAddress"),
                            {refuse(-1, because("end_before_start", below(last_octet("endAddress"),
                                                                          last_octet("startAddress"))))}})),
        check("TcmValidateReservedAddress",
              {text("reservedList", "the reserved addresses"),
               text("lanAddress", "the gateway's own address on the LAN")},
              {for_each(list_of("reservedList", ',', kBlank),
                        {judge_subnet("item"), refuse(701, repeats_item())})}),
        check("TcmValidateIPRouter", {text("address", "the gateway's own address on the LAN")},
              joined_steps({{refuse_highest_octet(it), refuse(-1, refused_by("TcmValidateIPAddress")),
                             refuse(-1, not_(begins_with({"192.168."})))},
                            judge_last_octet(it)})),
        check("TcmValidateofferDNS", {text("dnsList", "the DNS servers to offer")},
              {refuse(-1, because("too_many_items", above(items(it, ","), 2))),
               for_each(list_of(it, ',', kBlank), {refuse(-1, refused_by("TcmValidateIPAddress"))})}),
    };
}

}  // namespace ostrel::rules
