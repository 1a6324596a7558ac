#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

Step judge_string(int least, int most, const Set& set, const char* name = it)
{
    return refuse(its_code(), refused_by("ValidateString", {least, most, set, name}));
}

Check field(std::string_view name, ArgumentWords argument, int least, int most, const Set& set)
{
    return check(name, {std::move(argument)}, {judge_string(least, most, set)});
}

Step accept_form(int type, const Shape& shape)
{
    return accept(has_shape("local", {shape}), Write{"account_type", type});
}

std::vector<Step> local_part(int least, int most, const std::vector<std::pair<int, Shape>>& forms)
{
    std::vector<Step> steps = {
        remember("local", called("the part before the last \"@\"", before_last("value", "@"))),
        judge_string(least, most, kAccountDigits, "local"), accept(above(count("local", literal("#")), 2))};
    std::vector<Shape> shapes;
    for (const auto& [type, shape] : forms) {
        steps.push_back(accept_form(type, shape));
        shapes.push_back(shape);
    }
    steps.push_back(refuse(402, lacks_shape("local", shapes)));
    return steps;
}

Check ppp_user_name()
{
    const Group mark = one("#");
    const auto before_account_realm =
        local_part(18, 30,
                   {{1, {some(kDigits, 28)}},
                    {2, {some(kDigits, 13, 24), mark, some(kDigits, 4)}},
                    {3, {some(kDigits, 12), mark, some(kDigits, 16)}},
                    {4, {some(kDigits, 12), mark, some(kDigits, 1, 12), mark, some(kDigits, 4)}}});
    const auto before_setup_realm =
        local_part(16, 17, {{5, {some(kDigits, 16)}}, {6, {some(kDigits, 12), mark, some(kDigits, 4)}}});
    return check("TcmValidatePPPUsername",
                 {text("value", "the user name of an account"),
                  integer_out("account_type", "the type of the account")},
                 {when(ends_with("value", account_realm()), before_account_realm,
                       {when(ends_with("value", setup_realm()), before_setup_realm,
                             {judge_string(1, 131, kLatin1), write("account_type", 0)})})});
}

Check provisioning_code()
{
    const auto digit = [](std::string_view allowed) {
        return printing(one(allowed), unflushed("TcmValidateProvisioningCode  pCode[<offset>] error \n"));
    };
    const auto fixed = [](std::string_view byte) {
        return printing(one(byte), unflushed("TcmValidateProvisioningCode  pCode[<offset>] error\n"));
    };
    Shape shape;
    for (const char c : std::string_view("000.004.004.999")) {
        if (c == '4') shape.push_back(digit("01234"));
        if (c == '9') shape.push_back(digit("0123456789"));
        if (c == '0') shape.push_back(fixed("0"));
        if (c == '.') shape.push_back(fixed("."));
    }
    return check("TcmValidateProvisioningCode", {text("value", "a provisioning code")},
                 {refuse(402, length_not({15})), refuse(402, lacks_shape({shape}))});
}

Check port(std::string_view name)
{
    return check(name, {text("value", "a port number")}, {refuse(-1, below(1)), refuse(-1, above(65535))});
}

}  // namespace

std::vector<Check> accounts()
{
    return {
        provisioning_code(),
        ppp_user_name(),
        field("TcmValidatePPPPassword", text("value", "the password of an account").secret(), 1, 67, kLatin1),
        field("TcmValidateLANConfigPassword",
              text("value", "the password of the configuration pages").secret(), 4, 12, kNameSet),
        field("TcmValidateEmailPassword", text("value", "the password of a mail account").secret(), 0, 255,
              kNameSet),
        field("TcmValidateVoIPAnbietername", text("value", "the name of a telephony provider"), 1, 32,
              kNameSet),
        field("TcmValidateVoIPNumber", text("value", "a telephone number"), 1, 32, kDigits),
        field("TcmValidateVoIPUsername", text("value", "the user name of a telephony account"), 1, 64, kMail),
        field("TcmValidateVoIPPassword", text("value", "the password of a telephony account").secret(), 0,
              255, kNameSet),
        field("TcmValidateVoIPAreaCode", text("value", "an area code"), 1, 6, kDigits),
        port("TcmValidatePort"),
        port("TcmValidateVoIPRegistrarPort"),
    };
}

}  // namespace ostrel::rules
