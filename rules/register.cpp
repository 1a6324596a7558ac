// Registration of descriptions: resolves names, numbers steps and conditions, and splits lines into parts.

#include <algorithm>
#include <map>
#include <stdexcept>

#include "rules/rules.h"

namespace ostrel::rules {

namespace {

class Registration {
 public:
    explicit Registration(Check& check) : check_(check)
    {
        for (const Argument& argument : check.arguments) slots_.emplace(argument.name, slots_.size());
        for (Argument& argument : check.arguments) {
            if (argument.room) resolve(*argument.room);
        }
        collect_names(check.steps);
        resolve(check.steps, false);
        check.slots = slots_.size();
    }

 private:
    [[noreturn]] void fail(std::string_view what, std::string_view name) const
    {
        throw std::logic_error(std::string(check_.name) + ": " + std::string(what) + " " + std::string(name));
    }

    void collect_names(std::vector<Step>& steps)
    {
        for (Step& step : steps) {
            if (step.kind == Step::Kind::kRemember) {
                step.slot = slots_.emplace(step.name, slots_.size()).first->second;
                if (step.slot < check_.arguments.size()) fail("an argument already has the name", step.name);
            }
            collect_names(step.steps);
            collect_names(step.otherwise);
        }
    }

    void resolve(Expression& expression)
    {
        for (Expression& operand : expression.of) resolve(operand);
        if (expression.kind != Expression::Kind::kName) return;
        using Kind = Expression::Kind;
        static const std::map<std::string_view, Kind> kItems = {
            {"item", Kind::kItem}, {"index", Kind::kIndex}, {"rest", Kind::kRest}};
        static const std::map<std::string_view, Kind> kFaults = {{"byte", Kind::kByte},
                                                                 {"offset", Kind::kOffset}};
        if (expression.text.empty() && in_list_) {
            expression.kind = Kind::kItem;
        } else if (expression.text.empty()) {
            if (check_.arguments.empty()) fail("the check has no argument", "");
        } else if (const auto slot = slots_.find(expression.text); slot != slots_.end()) {
            expression.slot = slot->second;
        } else if (const auto item = kItems.find(expression.text); in_list_ && item != kItems.end()) {
            expression.kind = item->second;
        } else if (const auto fault = kFaults.find(expression.text); fault != kFaults.end()) {
            expression.kind = fault->second;
        } else {
            fail("unknown name", expression.text);
        }
    }

    void resolve(Condition& condition)
    {
        condition.number = check_.condition_count++;
        for (Expression& operand : condition.operands) resolve(operand);
        for (Match& match : condition.matches) resolve(match.value);
        for (Condition& part : condition.parts) resolve(part);
        for (Shape& shape : condition.shapes) {
            for (Group& group : shape) resolve(group.lines);
        }
    }

    void resolve(std::vector<Line>& lines)
    {
        for (Line& line : lines) {
            std::string_view rest = line.text;
            while (!rest.empty()) {
                const std::size_t begin = std::min(rest.find('<'), rest.size());
                if (begin > 0) line.parts.push_back({rest.substr(0, begin), std::nullopt});
                rest.remove_prefix(begin);
                if (rest.empty()) break;
                const std::size_t end = rest.find('>');
                if (end == std::string_view::npos) fail("missing end of", rest);
                Expression value = "";
                value.text = rest.substr(1, end - 1);
                if (value.text.empty()) fail("empty name in", line.text);
                resolve(value);
                line.parts.push_back({{}, std::move(value)});
                rest.remove_prefix(end + 1);
            }
        }
    }

    void resolve(std::vector<Step>& steps, bool in_list)
    {
        for (Step& step : steps) {
            in_list_ = in_list;
            step.number = check_.step_count++;
            resolve(step.condition);
            resolve(step.lines);
            resolve(step.code.number);
            for (Write& write : step.writes) {
                resolve(write.target);
                resolve(write.value);
            }
            if (step.value) resolve(*step.value);
            if (step.list) resolve(step.list->of);
            resolve(step.steps, in_list || step.kind == Step::Kind::kForEach);
            resolve(step.otherwise, in_list);
        }
        in_list_ = in_list;
    }

    Check& check_;
    std::map<std::string_view, std::size_t> slots_;
    bool in_list_ = false;
};

const Check* target_of(const std::vector<Check>& all, std::string_view name)
{
    const auto found = std::ranges::find(all, name, &Check::name);
    return found == all.end() ? nullptr : &*found;
}

void link(Condition& condition, const std::vector<Check>& all)
{
    for (Condition& part : condition.parts) link(part, all);
    if (condition.kind != Condition::Kind::kRefusedBy) return;
    condition.target = target_of(all, condition.check);
    if (condition.target == nullptr)
        throw std::logic_error("no description of " + std::string(condition.check));
    if (condition.target->arguments.size() != condition.operands.size()) {
        throw std::logic_error("wrong number of arguments for " + std::string(condition.check));
    }
}

void link(std::vector<Step>& steps, const std::vector<Check>& all)
{
    for (Step& step : steps) {
        link(step.condition, all);
        link(step.steps, all);
        link(step.otherwise, all);
    }
}

void add(std::vector<Check>& all, std::string_view module, std::vector<Check> checks)
{
    for (Check& check : checks) {
        check.module = module;
        check.number = all.size();
        const Registration registration(check);
        all.push_back(std::move(check));
    }
}

}  // namespace

std::vector<Check> make_checks()
{
    std::vector<Check> all;
    add(all, "strings", strings());
    add(all, "addresses", addresses());
    add(all, "accounts", accounts());
    add(all, "subnets", subnets());
    add(all, "wireless", wireless());
    add(all, "parameter_check", parameter_check());
    add(all, "ppp_check", ppp_check());
    add(all, "lan_check/host_configuration", lan_check_host_configuration());
    add(all, "lan_check/list_editing", lan_check_list_editing());
    add(all, "wlan_check/security_modes", wlan_check_security_modes());
    add(all, "wlan_check/keys", wlan_check_keys());
    add(all, "wlan_check/radio", wlan_check_radio());
    add(all, "wlan_check/settings", wlan_check_settings());
    add(all, "hosts", hosts());
    add(all, "date_time", date_time());
    add(all, "names", names());
    add(all, "port_mapping_check", port_mapping_check());
    add(all, "l3forwarding_check", l3forwarding_check());
    add(all, "mgtserver_check/management_server", mgtserver_check_management_server());
    add(all, "mgtserver_check/guest_access", mgtserver_check_guest_access());
    add(all, "mgtserver_check/hnap_core", mgtserver_check_hnap_core());
    add(all, "time_check", time_check());
    add(all, "branding_check", branding_check());
    for (Check& check : all) link(check.steps, all);
    return all;
}

const std::vector<Check>& checks()
{
    // The links between checks are pointers, so the elements must not be moved.
    static const std::vector<Check> all = make_checks();
    return all;
}

Check registered(Check check)
{
    const Registration registration(check);
    link(check.steps, checks());
    return check;
}

const Check* find(std::string_view name)
{
    static const auto index = [] {
        std::map<std::string_view, const Check*> result;
        for (const Check& check : checks()) result.emplace(check.name, &check);
        return result;
    }();
    const auto found = index.find(name);
    return found == index.end() ? nullptr : found->second;
}

}  // namespace ostrel::rules
