// The fields of a description that its evaluation reads, in one order for packing and unpacking.
//
// What only counts or explains is left out: the numbers of steps and conditions, and what is said of arguments.
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
    archive(it.kind, it.text, it.number, it.set, it.conversion, it.of, it.part, it.slot);
}

template <typename Archive>
void fields(Archive& archive, rules::Line::Part& it)
{
    archive(it.text, it.value);
}

template <typename Archive>
void fields(Archive& archive, rules::Line& it)
{
    archive(it.stream, it.is_flushed, it.parts);
}

template <typename Archive>
void fields(Archive& archive, rules::Group& it)
{
    archive(it.set, it.least, it.most, it.lines);
}

template <typename Archive>
void fields(Archive& archive, rules::Match& it)
{
    archive(it.column, it.how, it.value);
}

template <typename Archive>
void fields(Archive& archive, rules::Condition& it)
{
    archive(it.kind, it.is_negated, it.operands, it.words, it.ignores_case, it.numbers, it.shapes, it.grammar,
            it.table, it.matches, it.parts, it.id, it.target);
}

template <typename Archive>
void fields(Archive& archive, rules::Table& it)
{
    archive(it.columns, it.rows);
}

template <typename Archive>
void fields(Archive& archive, rules::Write& it)
{
    archive(it.target, it.value);
}

template <typename Archive>
void fields(Archive& archive, rules::Code& it)
{
    archive(it.number, it.is_its, it.exchanges);
}

template <typename Archive>
void fields(Archive& archive, rules::List& it)
{
    archive(it.of, it.separator, it.trimmed, it.part);
}

template <typename Archive>
void fields(Archive& archive, rules::Step& it)
{
    archive(it.kind, it.code, it.condition, it.lines, it.writes, it.name, it.value, it.list, it.steps,
            it.otherwise, it.slot);
}

template <typename Archive>
void fields(Archive& archive, rules::Argument& it)
{
    archive(it.name, it.kind, it.is_secret, it.is_output, it.asserted, it.blocks, it.block_size);
}

template <typename Archive>
void fields(Archive& archive, rules::Check& it)
{
    archive(it.name, it.arguments, it.steps, it.is_verdict, it.module, it.slots, it.number);
}

// Kinds numbers the types that are packed once each, however often they are used.
template <typename... Types>
struct Kinds {
    template <typename T>
    static constexpr unsigned number()
    {
        unsigned number = 0;
        unsigned result = 0;
        ((result = std::is_same_v<T, Types> ? number : result, ++number), ...);
        return result;
    }
};

using Packed = Kinds<std::string_view, rules::Expression, rules::Line::Part, rules::Line, rules::Group,
                     rules::Match, rules::Condition, rules::Table, rules::Write, rules::Code, rules::List,
                     rules::Step, rules::Argument, rules::Check>;

constexpr std::size_t kKinds = Packed::number<rules::Check>() + 1;

}  // namespace ostrel::web

#endif
