#include "catalogue/catalogue.h"

#include <algorithm>
#include <iterator>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

namespace {

void append(std::vector<Function>& all, std::string_view family, std::vector<Function> functions)
{
    for (Function& function : functions) function.family = family;
    std::ranges::move(functions, std::back_inserter(all));
}

std::vector<Function> collect()
{
    std::vector<Function> all;
    append(all, "strings", strings());
    append(all, "addresses", addresses());
    append(all, "hosts", hosts());
    append(all, "accounts", accounts());
    append(all, "date-time", date_time());
    append(all, "subnets", subnets());
    append(all, "wireless", wireless());
    append(all, "names", names());
    append(all, "parameters", parameter_checks());
    append(all, "wlan", wlan_checks());
    append(all, "ppp", ppp_checks());
    append(all, "lan", lan_checks());
    append(all, "port-mapping", port_mapping_checks());
    append(all, "forwarding", forwarding_checks());
    append(all, "management", management());
    append(all, "guest-access", guest_access());
    append(all, "hnap", hnap());
    append(all, "time", time_checks());
    append(all, "branding", branding_checks());
    return all;
}

}  // namespace

const std::vector<Function>& functions()
{
    static const std::vector<Function> all = collect();
    return all;
}

const Function* find(std::string_view name)
{
    static const std::vector<const Function*> by_name = [] {
        std::vector<const Function*> sorted;
        for (const Function& function : functions()) sorted.push_back(&function);
        std::ranges::sort(sorted, {}, &Function::name);
        return sorted;
    }();
    const auto found = std::ranges::lower_bound(by_name, name, {}, &Function::name);
    return found != by_name.end() && (*found)->name == name ? *found : nullptr;
}

}  // namespace ostrel::catalogue
