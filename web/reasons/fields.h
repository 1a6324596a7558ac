// Lists the fields of a description that evaluation reads, which excludes step numbers and descriptions of
// arguments, in the same order for packing and unpacking. Each function names every field, so that it does
// not compile if a field is added.
#ifndef OSTREL_WEB_REASONS_FIELDS_H
#define OSTREL_WEB_REASONS_FIELDS_H

#include <cstddef>
#include <string_view>
#include <type_traits>

#include "rules/vocabulary.h"

namespace ostrel::web {

template <typename Archive>
void fields(Archive& archive, rules::Expression& it)
{
    auto& [kind, text, number, set, conversion, of, part, slot] = it;
    archive(kind, text, number, set, conversion, of, part, slot);
}

template <typename Archive>
void fields(Archive& archive, rules::Line::Part& it)
{
    auto& [text, value] = it;
    archive(text, value);
}

template <typename Archive>
void fields(Archive& archive, rules::Line& it)
{
    auto& [text, stream, is_flushed, parts] = it;
    archive(stream, is_flushed, parts);
}

template <typename Archive>
void fields(Archive& archive, rules::Group& it)
{
    auto& [set, least, most, lines] = it;
    archive(set, least, most, lines);
}

template <typename Archive>
void fields(Archive& archive, rules::Match& it)
{
    auto& [column, how, value] = it;
    archive(column, how, value);
}

template <typename Archive>
void fields(Archive& archive, rules::Condition& it)
{
    auto& [kind, is_negated, operands, words, ignores_case, numbers, shapes, grammar, table, matches, check,
           parts, id, number, target] = it;
    archive(kind, is_negated, operands, words, ignores_case, numbers, shapes, grammar, table, matches, parts,
            id, target);
}

template <typename Archive>
void fields(Archive& archive, rules::Table& it)
{
    auto& [columns, rows] = it;
    archive(columns, rows);
}

template <typename Archive>
void fields(Archive& archive, rules::Write& it)
{
    auto& [target, value, is_terminated] = it;
    archive(target, value);
}

template <typename Archive>
void fields(Archive& archive, rules::Code& it)
{
    auto& [number, is_its, exchanges] = it;
    archive(number, is_its, exchanges);
}

template <typename Archive>
void fields(Archive& archive, rules::List& it)
{
    auto& [of, separator, trimmed, part] = it;
    archive(of, separator, trimmed, part);
}

template <typename Archive>
void fields(Archive& archive, rules::Step& it)
{
    auto& [kind, code, condition, lines, writes, name, value, list, steps, otherwise, number, slot] = it;
    archive(kind, code, condition, lines, writes, name, value, list, steps, otherwise, slot);
}

template <typename Archive>
void fields(Archive& archive, rules::Argument& it)
{
    auto& [name, kind, what, unit, is_secret, is_output, asserted, room, blocks, block_size] = it;
    archive(name, kind, is_secret, is_output, asserted, blocks, block_size);
}

template <typename Archive>
void fields(Archive& archive, rules::Check& it)
{
    auto& [name, arguments, steps, is_verdict, module, slots, step_count, condition_count, number] = it;
    archive(name, arguments, steps, is_verdict, module, slots, number);
}

// TypeNumbers assigns numbers to the types whose equal values are packed only once.
template <typename... Types>
struct TypeNumbers {
    template <typename T>
    static constexpr unsigned number()
    {
        unsigned number = 0;
        unsigned result = 0;
        ((result = std::is_same_v<T, Types> ? number : result, ++number), ...);
        return result;
    }
};

using Packed = TypeNumbers<std::string_view, rules::Expression, rules::Line::Part, rules::Line, rules::Group,
                           rules::Match, rules::Condition, rules::Table, rules::Write, rules::Code,
                           rules::List, rules::Step, rules::Argument, rules::Check>;

constexpr std::size_t kKinds = Packed::number<rules::Check>() + 1;

}  // namespace ostrel::web

#endif
