#include "oracle/harvest.h"

namespace ostrel::oracle {

namespace {

using rules::Condition;
using rules::Expression;
using rules::Group;
using rules::Step;

class Harvest {
 public:
    Harvest(const rules::Build& build, std::set<std::string>& texts) : build_(build), texts_(texts) {}

    void steps(const std::vector<Step>& steps)
    {
        for (const Step& step : steps) {
            condition(step.condition);
            if (step.value) expression(*step.value);
            for (const rules::Write& write : step.writes) expression(write.value);
            this->steps(step.steps);
            this->steps(step.otherwise);
        }
    }

 private:
    // A number in a description may limit either a number or a length.
    void number(long long limit)
    {
        constexpr long long kLongest = 8000;
        for (const long long near : {limit - 1, limit, limit + 1}) {
            texts_.insert(std::to_string(near));
            if (near < 0 || near > kLongest) continue;
            for (const char c : {'0', 'a', 'Z', '#', ' '})
                texts_.insert(std::string(static_cast<std::size_t>(near), c));
        }
    }

    void expression(const Expression& expression)
    {
        if (expression.kind == Expression::Kind::kNumber) number(expression.number);
        if (expression.kind == Expression::Kind::kText) texts_.insert(std::string(expression.text));
        if (expression.conversion != nullptr)
            texts_.insert(expression.conversion->changed.begin(), expression.conversion->changed.end());
        if (expression.kind == Expression::Kind::kModel) texts_.insert(std::string(build_.model));
        if (expression.kind == Expression::Kind::kAccountRealm) suffix(build_.account_realm);
        if (expression.kind == Expression::Kind::kSetupRealm) suffix(build_.setup_realm);
        for (const Expression& operand : expression.of) this->expression(operand);
    }

    // The realm will be appended to the examples of all later shapes.
    void suffix(std::string_view realm) { realms_.emplace(realm); }

    void shape(const rules::Shape& shape)
    {
        for (const bool longest : {false, true}) {
            std::string text;
            for (const Group& group : shape) {
                text.append(longest ? group.most : group.least, group.set.members().front());
            }
            texts_.insert(text);
            for (const std::string& realm : realms_) texts_.insert(text + realm);
        }
    }

    void condition(const Condition& condition)
    {
        for (const Expression& operand : condition.operands) expression(operand);
        for (const std::string_view word : condition.words) texts_.insert(std::string(word));
        for (const long long one : condition.numbers) number(one);
        for (const rules::Shape& one : condition.shapes) shape(one);
        for (const Condition& part : condition.parts) this->condition(part);
        if (condition.grammar != nullptr) {
            for (const std::string_view text : condition.grammar->accepted) texts_.insert(std::string(text));
            for (const std::string_view text : condition.grammar->refused) texts_.insert(std::string(text));
        }
        if (condition.target != nullptr) steps(condition.target->steps);
    }

    const rules::Build& build_;
    std::set<std::string>& texts_;
    std::set<std::string> realms_;
};

}  // namespace

std::set<std::string> harvest(const rules::Check& check, const rules::Build& build)
{
    std::set<std::string> texts = {
        "",           "2147483647",  "2147483648",           "-2147483649", "4294967295",
        "4294967296", "99999999999", "99999999999999999999", "-99999999999"};
    Harvest(build, texts).steps(check.steps);
    return texts;
}

}  // namespace ostrel::oracle
