#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

constexpr Set kHost = kHostLabel | Set(".");

Check domain_name()
{
    return check(
        "TcmValidateDomainName", {text("value", "a host name")},
        {refuse(-1, empty()), refuse(-1, outside(kHost)),
         refuse(-1, because("numeric_name", not_(outside(kIpv4)))),
         refuse(-1, because("too_many_labels", above(items(it, "."), 6))),
         for_each(list_of(it, '.', {}, "label"), {refuse(-1, empty()), refuse(-1, longer_than(20))})});
}

// A value that consists only of digits and dots must be an address, and any other value must be a name.
Check host()
{
    return check("ValidateURL", {text("value", "a host name or an IPv4 address")},
                 {refuse(-1, empty()), refuse(-1, outside(kHost)),
                  when(outside(kIpv4), {refuse(-1, refused_by("TcmValidateDomainName"))},
                       {refuse(-1, refused_by("TcmValidateIPAddress", {called("the IPv4 address", it)}))})});
}

// The first ":" after the scheme ends the host, even if it is in the path. The set for the whole URL contains
// the sets for host and port and is tested after them, so that no reason suggests a byte that a later step
// refuses.
Check url(std::string_view name, std::string_view what, int code, Words schemes)
{
    const Condition has_port = contains("rest", literal(":"));
    const Expression port = called("the port", before_first(after_first("rest", ":"), "/"));
    return check(
        name, {text("value", what)},
        {refuse(code, longer_than(256)), refuse(code, not_(begins_with(std::move(schemes)))),
         remember("rest", after_first(it, "://")),
         when(has_port,
              {refuse(code, because("colon_in_path", contains(before_first("rest", ":"), literal("/")))),
               refuse(code, refused_by("ValidateURL", {called("the host", before_first("rest", ":"))})),
               refuse(code, outside(port, kDigits))},
              {refuse(code, refused_by("ValidateURL", {called("the host", before_first("rest", "/"))}))}),
         refuse(code, outside(kUrl)),
         when(has_port, {refuse(code, below(port, 0)), refuse(code, above(port, 65535))})});
}

// The part between the first "@" and the last "." may contain further "@" and "." bytes.
Check mail_outline()
{
    const Expression before = called("the part before the \"@\"", before_first(it, "@"));
    const Expression after = called("the part after the first \"@\"", after_first(it, "@"));
    return check("isEmail", {text("value", "an e-mail address")},
                 {refuse(-1, shorter_than(5)), refuse(-1, not_(contains(it, literal("@")))),
                  refuse(-1, empty(before)), refuse(-1, not_(contains(after, literal(".")))),
                  refuse(-1, empty(called("the part between the first \"@\" and the last \".\"",
                                          before_last(after, ".")))),
                  refuse(-1, empty(called("the part after the last \".\"", after_last(after, "."))))});
}

// The set includes the set for a host. For a byte in neither set, the reason contains the smaller set, so
// that it does not suggest a byte that a later step refuses.
Step refuse_outside(const Set& set) { return refuse(803, all_of({outside(set), outside(kHost)})); }

}  // namespace

std::vector<Check> hosts()
{
    return {
        domain_name(),
        host(),
        url("TcmValidateServerURL", "the URL of a management server", -1,
            {"x-dslf_cwmp://", "x-dslf_cwmps://"}),
        url("TcmValidatefirmwareURL", "the URL of a firmware image", 600, {"http://", "https://"}),
        mail_outline(),
        check("TcmValidateEmailAddress", {text("value", "an e-mail address")},
              {refuse(its_code(), refused_by("ValidateString", {5, 64, kMail, it})),
               refuse(600, refused_by("isEmail"))}),
        check("TcmValidateVoIPRegistrar", {text("value", "the host of a telephony registrar")},
              {refuse(801, shorter_than(3)), refuse(802, longer_than(64)), refuse_outside(kNameSet),
               refuse(600, refused_by("ValidateURL"))}),
        check("TcmValidateVoIPSTUNServer", {text("value", "the host of a STUN server")},
              {refuse(802, longer_than(64)), refuse_outside(kHostPort), accept(empty()),
               refuse(600, refused_by("ValidateURL"))}),
    };
}

}  // namespace ostrel::rules
