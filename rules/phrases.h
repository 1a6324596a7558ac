// Descriptions of expressions, conditions and lines in words.
#ifndef OSTREL_RULES_PHRASES_H
#define OSTREL_RULES_PHRASES_H

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "rules/vocabulary.h"

namespace ostrel::rules {

// Meant is what a name refers to.
struct Meant {
    std::string words;
    bool is_number = false;                // true for a number, false for a string
    bool may_be_null = false;              // true for an argument without an assertion
    bool is_null = false;                  // true if NULL is passed
    const Expression* constant = nullptr;  // a literal string, number or set
    std::set<std::string> sources = {};    // the arguments from which it is derived
};

// Facts are known about strings at some step. Each string is identified by the words that describe it.
struct Facts {
    std::set<std::string> empty = {};
    std::set<std::string> not_empty = {};
    // The string is one of these words, in the same case.
    std::map<std::string, std::set<std::string_view>> words = {};
};

// Clause is a subject with a predicate, such as "value" and "has more than 8 bytes".
struct Clause {
    std::string subject;
    std::string predicate;

    [[nodiscard]] std::string text() const { return subject + (subject.empty() ? "" : " ") + predicate; }
};

// includes returns true if one implies other, or has been merged with it, as in "has 8 to 63 bytes".
bool includes(Clause& one, const Clause& other);

// Speaker describes one check, using the argument names of the check that is being explained.
class Speaker {
 public:
    Speaker(const Check& check, const Build& build);

    // spell_out replaces the names of remembered values with what they refer to.
    void spell_out(const std::vector<Step>& steps);

    // of_other returns a speaker for the check that a condition calls. It describes that check's arguments
    // with the words that this speaker uses for the values that are passed.
    [[nodiscard]] Speaker of_other(const Condition& use) const;

    // of_items returns a speaker for the steps that are executed for each item of a list.
    [[nodiscard]] Speaker of_items(const List& list) const;

    [[nodiscard]] const Check& check() const { return *check_; }

    // value names a string or a number. number names a number, which may be read from a string, as in "the
    // number in value".
    [[nodiscard]] std::string value(const Expression& expression) const;
    [[nodiscard]] std::string number(const Expression& expression) const;
    [[nodiscard]] bool is_number(const Expression& expression) const;

    [[nodiscard]] Clause clause(const Condition& condition, bool holds = true) const;
    [[nodiscard]] std::string when(const Condition& condition) const { return clause(condition).text(); }

    // known returns true if a condition always holds, false if it never holds, and otherwise nullopt.
    [[nodiscard]] std::optional<bool> known(const Condition& condition) const;

    // learn records that a condition holds or fails from here on, and forget that a step has changed what a
    // name refers to. meet keeps only the facts that are also known on another path to the same step.
    void learn(const Condition& condition, bool holds);
    void forget(const Step& step);
    void meet(const Speaker& other);

    // list names the items of a list, as in "each item of value separated by ","".
    [[nodiscard]] std::string list(const List& list) const;
    [[nodiscard]] const std::string& item() const { return item_.words; }

    // line returns a line in which <name> stands for a value and \n for a line ending.
    [[nodiscard]] std::string line(const Line& line) const;

    // pass_null sets an argument to NULL. is_null returns true for an expression that is NULL, and reads_null
    // for one that reads NULL.
    void pass_null(std::size_t argument) { slots_[argument].is_null = true; }
    [[nodiscard]] bool is_null(const Expression& expression) const;
    [[nodiscard]] bool reads_null(const Expression& expression) const;

    void add_sources(const Condition& condition, std::set<std::string>& names) const;

    [[nodiscard]] bool reads_number(const Condition& condition) const;

 private:
    void remember(const std::vector<Step>& steps);
    void forget(const std::string& name);
    [[nodiscard]] std::optional<bool> known_of_text(const Condition& condition) const;
    void add_sources(const Expression& expression, std::set<std::string>& names) const;
    [[nodiscard]] Meant made_of(const Expression& expression, std::string words) const;
    [[nodiscard]] const Meant* meant(const Expression& expression) const;
    [[nodiscard]] const Expression* constant(const Expression& expression) const;
    [[nodiscard]] std::string unnamed(const Expression& expression) const;
    [[nodiscard]] std::string slice(const Expression& expression) const;
    [[nodiscard]] std::string as_many(const Expression& number) const;
    [[nodiscard]] std::string computed(const Expression& expression) const;
    [[nodiscard]] std::string counted(const Expression& number, std::string_view unit) const;
    [[nodiscard]] std::string set(const Expression& expression) const;
    [[nodiscard]] bool is_plural(const Expression& expression) const;
    [[nodiscard]] std::string other(const Expression& expression) const;
    [[nodiscard]] std::string among(const Expression& expression, bool holds) const;
    [[nodiscard]] bool is_beginning(const Expression& judged, const Expression& other) const;
    [[nodiscard]] Clause clause_of_kind(const Condition& condition, bool holds) const;
    [[nodiscard]] Clause text_clause(const Condition& condition, bool holds) const;
    [[nodiscard]] Clause number_clause(const Condition& condition, bool holds) const;
    [[nodiscard]] Clause outside_clause(const Condition& condition, bool holds) const;
    [[nodiscard]] Clause row_clause(const Condition& condition, bool holds) const;
    [[nodiscard]] Clause use_clause(const Condition& condition, bool holds) const;
    [[nodiscard]] Clause parts_clause(const Condition& condition, bool holds) const;

    const Check* check_;
    const Build* build_;
    std::vector<Meant> slots_;
    Meant item_;
    std::string list_of_;  // the list that contains the item
    const Table* table_ = nullptr;
    Facts facts_;
};

std::string in_words(const Shape& shape);

// bytes_in_words names the bytes of a set in the plural, such as "spaces".
std::string bytes_in_words(const Set& set);

// joined_words returns "a, b or c".
std::string joined_words(const std::vector<std::string>& words, std::string_view last);

// together joins clauses, as in "value has 3 bytes and is not NULL; other is empty".
std::string together(const std::vector<Clause>& clauses);

}  // namespace ostrel::rules

#endif
