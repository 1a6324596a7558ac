// Accounts, passwords and the fields of telephony.
#include <algorithm>
#include <limits>

#include "fuzz/model/generic.h"

namespace ostrel::model {

namespace {

const std::string kAccountRealm = OSTREL_ACCOUNT_REALM;
const std::string kSetupRealm = OSTREL_SETUP_REALM;
const std::string kName = rule::kLettersAndDigits + "-._";
const std::string kMail = rule::kLettersAndDigits + "-.@";

template <int Min, int Max, const std::string& Set>
Answer field(const std::string& value)
{
    return silent(rule::length_and_set(Min, Max, Set, value));
}

Answer password(const std::string& value)
{
    return silent(rule::length_and_set(1, 67, rule::printable_latin1(), value));
}

// Verdict is a code and, on acceptance, the type of the account; -1: none is written.
struct Verdict {
    int code = 0;
    int type = -1;
};

Verdict typed(int type) { return type < 0 ? Verdict{402, -1} : Verdict{0, type}; }

Verdict in_account_realm(const std::string& local)
{
    const auto marks = std::ranges::count(local, '#');
    const int code = rule::length_and_set(18, 30, "0123456789#", local);
    if (code != 0) return {code, -1};
    if (marks >= 3) return {0, -1};
    const std::size_t length = local.size();
    int type = -1;
    if (marks == 0 && length == 28) type = 1;
    if (marks == 1) {
        const std::size_t before = local.find('#');
        if (length < 29 && before >= 13 && before == length - 5) type = 2;
        if (length == 29 && local[24] == '#') type = 2;
        if (length == 29 && local[12] == '#') type = 3;
    }
    if (marks == 2 && length >= 19 && local[12] == '#' && local[length - 5] == '#') type = 4;
    return typed(type);
}

Verdict in_setup_realm(const std::string& local)
{
    const auto marks = std::ranges::count(local, '#');
    const int code = rule::length_and_set(16, 17, "0123456789#", local);
    if (code != 0) return {code, -1};
    if (marks >= 3) return {0, -1};
    int type = -1;
    if (marks == 0 && local.size() == 16) type = 5;
    if (marks == 1 && local.size() == 17 && local[12] == '#') type = 6;
    return typed(type);
}

Verdict user_name(const std::string& value)
{
    const auto has_realm = [&](const std::string& realm) {
        return value.size() > realm.size() && value.substr(value.size() - realm.size()) == realm;
    };
    if (has_realm(kAccountRealm)) return in_account_realm(value.substr(0, value.rfind('@')));
    if (has_realm(kSetupRealm)) return in_setup_realm(value.substr(0, value.rfind('@')));
    const int code = rule::length_and_set(1, 131, rule::printable_latin1(), value);
    return {code, code == 0 ? 0 : -1};
}

Answer ppp_user_name(Arguments arguments)
{
    if (is_null(arguments[0]) || is_null(arguments[1])) return undefined();
    const Verdict verdict = user_name(text(arguments[0]));
    Answer answer = silent(verdict.code);
    // What is shown as unwritten is the number that stands for it.
    Value after = arguments[1];
    if (number(after) == std::numeric_limits<int>::min()) after = nullptr;
    if (verdict.type >= 0) after = static_cast<long long>(verdict.type);
    answer.after.push_back(after);
    return answer;
}

Answer port(const std::string& value)
{
    const Number read = read_number(value);
    if (read.undefined) return undefined();
    return silent(read.value > 0 && read.value < 65536 ? 0 : -1);
}

}  // namespace

int rule::user_name_code(const std::string& value) { return user_name(value).code; }

Answer rule::provisioning_code(const std::string& value)
{
    if (value.size() != 15) return silent(402);
    const std::string shape = "000.00d.00d.ddd";
    for (std::size_t i = 0; i < 15; ++i) {
        const char c = value[i];
        bool good = c == shape[i];
        std::string_view blank;
        if (shape[i] == 'd') {
            good = c >= '0' && c <= (i < 12 ? '4' : '9');
            blank = " ";
        }
        if (good) continue;
        Answer answer = silent(402);
        answer.out = "TcmValidateProvisioningCode  pCode[" + std::to_string(i) + "] error";
        answer.out.append(blank).append("\n");
        answer.flushed = false;
        return answer;
    }
    return silent(0);
}

void add_accounts(Models& models)
{
    models["TcmValidateProvisioningCode"] = on_text<rule::provisioning_code>;
    models["TcmValidatePPPUsername"] = ppp_user_name;
    models["TcmValidatePPPPassword"] = on_text<password>;
    models["TcmValidateLANConfigPassword"] = on_text<field<4, 12, kName>>;
    models["TcmValidateEmailPassword"] = on_text<field<0, 255, kName>>;
    models["TcmValidateVoIPAnbietername"] = on_text<field<1, 32, kName>>;
    models["TcmValidateVoIPNumber"] = on_text<field<1, 32, rule::kDigits>>;
    models["TcmValidateVoIPUsername"] = on_text<field<1, 64, kMail>>;
    models["TcmValidateVoIPPassword"] = on_text<field<0, 255, kName>>;
    models["TcmValidateVoIPAreaCode"] = on_text<field<1, 6, rule::kDigits>>;
    models["TcmValidatePort"] = on_text<port>;
    models["TcmValidateVoIPRegistrarPort"] = on_text<port>;
}

}  // namespace ostrel::model
