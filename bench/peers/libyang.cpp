#include <libyang/libyang.h>

#include <cstring>
#include <stdexcept>

#include "bench/contender.h"

namespace ostrel::bench {

namespace {

// kModule defines a leaf for each family, with the type that a modeller would choose.
constexpr char kModule[] = R"(
module ostrel-bench {
  yang-version 1.1;
  namespace "urn:ostrel:bench";
  prefix ob;
  import ietf-inet-types { prefix inet; }
  import ietf-yang-types { prefix yang; }
  leaf ipv4 { type inet:ipv4-address-no-zone; }
  leaf mac { type yang:mac-address; }
  leaf host { type inet:domain-name; }
  leaf url { type inet:uri; }
  leaf email { type string { pattern '[A-Za-z0-9.\-]+@[A-Za-z0-9.\-]+\.[A-Za-z0-9\-]+'; length "5..64"; } }
  leaf account { type string { pattern '[0-9]{24}#?[0-9]{4}@example\.net'; } }
  leaf date_time { type yang:date-and-time; }
  leaf printable { type string { pattern '[ -~]+'; } }
  leaf password { type string { pattern '[0-9A-Za-z]+'; length "8..32"; } }
  leaf number { type uint32 { range "0..999999"; } }
  leaf own_set_8 { type string { pattern '[0-9A-Za-z]+'; length "1..64"; } }
  leaf own_set_16 { type string { pattern '[0-9A-Za-z]+'; length "1..64"; } }
  leaf own_set_32 { type string { pattern '[0-9A-Za-z]+'; length "1..64"; } }
  leaf own_set_64 { type string { pattern '[0-9A-Za-z]+'; length "1..64"; } }
  leaf own_digits_8 { type string { pattern '[0-9]+'; length "1..64"; } }
  leaf keyword { type enumeration { enum None; enum Basic; enum WPA; enum 11i; enum WPAand11i; } }
  leaf rates {
    type string {
      pattern 'all|default|(1|2|5\.5|6|9|11|12|18|24|36|48|54)(,(1|2|5\.5|6|9|11|12|18|24|36|48|54))*';
    }
  }
  leaf dns_servers {
    type string {
      pattern '(([0-9]|[1-9][0-9]|1[0-9][0-9]|2[0-4][0-9]|25[0-5])\.){3}([0-9]|[1-9][0-9]|1[0-9][0-9]|2[0-4][0-9]'
            + '|25[0-5])( *, *(([0-9]|[1-9][0-9]|1[0-9][0-9]|2[0-4][0-9]|25[0-5])\.){3}([0-9]|[1-9][0-9]|1[0-9][0-9]'
            + '|2[0-4][0-9]|25[0-5]))?';
    }
  }
  leaf reservations {
    type string { pattern '192\.168\.2\.[0-9]{1,3}(,192\.168\.2\.[0-9]{1,3})*'; }
  }
}
)";

}  // namespace

void add_libyang(Contenders& all)
{
    ly_ctx* context = nullptr;
    // libyang must not log refused values.
    ly_log_options(0);
    if (ly_ctx_new(nullptr, 0, &context) != LY_SUCCESS)
        throw std::runtime_error("cannot create a libyang context");
    if (lys_parse_mem(context, kModule, LYS_IN_YANG, nullptr) != LY_SUCCESS) {
        throw std::runtime_error("libyang does not accept the module");
    }
    for (const ValueFamily& family : families()) {
        const std::string path = "/ostrel-bench:" + family.name;
        const lysc_node* leaf = lys_find_path(context, nullptr, path.c_str(), 0);
        if (leaf == nullptr) throw std::runtime_error("libyang cannot find " + path);
        all.push_back(contender(family.name, "libyang", [context, leaf](const char* v) {
            return lyd_value_validate(context, leaf, v, std::strlen(v), nullptr, nullptr, nullptr) ==
                   LY_SUCCESS;
        }));
    }
}

}  // namespace ostrel::bench
