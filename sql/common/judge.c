#include "sql/common/judge.h"

#include <limits.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "sql/common/call.h"
#include "sql/common/print.h"

__attribute__((format(printf, 3, 4))) static bool fail(OstrelFault* fault, OstrelFaultKind kind,
                                                       const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    fault->kind = kind;
    vsnprintf(fault->message, sizeof fault->message, format, arguments);
    va_end(arguments);
    return false;
}

/* is_name returns whether a message may contain the name. SQL may pass arbitrary bytes as a name. */
static bool is_name(const char* text, size_t size)
{
    static const char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
    return size <= 64 && strspn(text, kLetters) >= size;
}

static void list_arguments(const OstrelCheck* check, char* out, size_t room)
{
    out[0] = '\0';
    for (unsigned i = 0; i < check->count; ++i) {
        const OstrelArgument* argument = &check->arguments[i];
        if (argument->kind == kOutputText || argument->kind == kOutputInteger) continue;
        const size_t used = strlen(out);
        snprintf(out + used, room - used, "%s%s", i == 0 ? "" : ", ", argument->name);
    }
}

bool ostrel_is_callable(const OstrelCheck* check, size_t values, bool is_verdict, OstrelFault* fault)
{
    if (check->hindrance == kNeverReturns)
        return fail(fault, kNotCalled,
                    "%s cannot be called from SQL because it does not return for some values", check->name);
    if (check->hindrance == kRunsShell)
        return fail(fault, kNotCalled, "%s cannot be called from SQL because it runs a shell", check->name);
    if (is_verdict && check->is_number)
        return fail(fault, kNoVerdict, "%s returns a number, not a result code; use ostrel_code",
                    check->name);
    if (values != check->texts) {
        char names[kMostMessage / 2];
        list_arguments(check, names, sizeof names);
        return fail(fault, values < check->texts ? kTooFewValues : kTooManyValues,
                    "%s takes %u value%s (%s); %zu %s given", check->name, check->texts,
                    check->texts == 1 ? "" : "s", names, values, values == 1 ? "was" : "were");
    }
    return true;
}

static int compare_names(const void* name, const void* check)
{
    const OstrelText* const text = name;
    const char* const other = ((const OstrelCheck*)check)->name;
    const size_t length = strlen(other);
    /* strncmp would stop at a NUL byte in the name. */
    const int order = memcmp(text->bytes, other, text->size < length ? text->size : length);
    return order != 0 ? order : (text->size > length) - (text->size < length);
}

const OstrelCheck* ostrel_choose_check(const char* name, size_t size, size_t values, bool is_verdict,
                                       OstrelFault* fault)
{
    const OstrelText text = {name, size};
    const OstrelCheck* const check =
        bsearch(&text, ostrel_checks, ostrel_check_count, sizeof ostrel_checks[0], compare_names);
    if (check == NULL && is_name(name, size)) {
        fail(fault, kUnknownCheck, "there is no check \"%.*s\"", (int)size, name);
    } else if (check == NULL) {
        fail(fault, kUnknownCheck, "there is no check of that name");
    } else if (!ostrel_is_callable(check, values, is_verdict, fault)) {
        return NULL;
    }
    return check;
}

static bool read_integer(const OstrelText* given, long long lowest, long long highest, long long* number)
{
    const char first = given->bytes[0];
    if (first != '-' && first != '+' && (first < '0' || first > '9')) return false;
    char* end = NULL;
    *number = strtoll(given->bytes, &end, 10);
    return end == given->bytes + given->size && end[-1] >= '0' && *number >= lowest && *number <= highest;
}

/* load_value validates a value that SQL passes and stores it in the slot. Buffers are left to load_buffer. */
static bool load_value(const OstrelCheck* check, const OstrelArgument* argument, const OstrelText* given,
                       OstrelSlot* slot, OstrelFault* fault)
{
    const bool is_signed = argument->kind == kInteger;
    long long number = 0;
    switch (argument->kind) {
        case kText:
        case kBuffer:
        case kBlocks:
            for (unsigned i = 0; i < (argument->kind == kBlocks ? argument->blocks : 1); ++i) {
                if (memchr(given[i].bytes, '\0', given[i].size) != NULL)
                    return fail(fault, kNulByte, "%s: %s contains a NUL byte", check->name, argument->name);
                if (argument->kind == kBlocks && given[i].size >= argument->block_size)
                    return fail(fault, kTooLongForBlock, "%s: string %u of %s has more than %zu bytes",
                                check->name, i + 1, argument->name, argument->block_size - 1);
            }
            slot->text = given->bytes;
            return true;
        case kInteger:
        case kUnsigned:
            if (!read_integer(given, is_signed ? INT_MIN : 0, is_signed ? INT_MAX : UINT_MAX, &number))
                return fail(fault, kNotAnInteger, "%s: %s must be an integer from %lld to %lld", check->name,
                            argument->name, is_signed ? INT_MIN : 0LL,
                            is_signed ? INT_MAX : (long long)UINT_MAX);
            slot->integer = (int)number;
            slot->natural = (unsigned)number;
            return true;
        case kOutputInteger:
            slot->integer = OSTREL_UNWRITTEN;
            return true;
        case kOutputText:
            return true;
    }
    return false;
}

/* load_buffer copies the values of a writable argument to a new buffer, or returns false if out of memory. */
static bool load_buffer(const OstrelCheck* check, const OstrelText* given, const OstrelText* own,
                        OstrelSlot* slots, unsigned i)
{
    const OstrelArgument* argument = &check->arguments[i];
    if (argument->kind == kBlocks) {
        slots[i].buffer = calloc(argument->blocks, argument->block_size);
        for (unsigned block = 0; slots[i].buffer != NULL && block < argument->blocks; ++block)
            memcpy(slots[i].buffer + block * argument->block_size, own[block].bytes, own[block].size);
    } else {
        const size_t room = ostrel_room(check, given, slots, i);
        slots[i].buffer = room == 0 ? NULL : calloc(room, 1);
        if (slots[i].buffer != NULL && argument->kind == kBuffer)
            memcpy(slots[i].buffer, own->bytes, own->size);
    }
    return slots[i].buffer != NULL;
}

static bool is_written(const OstrelArgument* argument)
{
    return argument->kind == kBuffer || argument->kind == kBlocks || argument->kind == kOutputText;
}

static unsigned texts_of(const OstrelArgument* argument)
{
    if (argument->kind == kBlocks) return argument->blocks;
    return argument->kind == kOutputText || argument->kind == kOutputInteger ? 0 : 1;
}

static bool load(const OstrelCheck* check, const OstrelText* given, OstrelSlot* slots, OstrelFault* fault)
{
    bool has_buffer = false;
    const OstrelText* own = given;
    for (unsigned i = 0; i < check->count; ++i) {
        if (!load_value(check, &check->arguments[i], own, &slots[i], fault)) return false;
        has_buffer = has_buffer || is_written(&check->arguments[i]);
        own += texts_of(&check->arguments[i]);
    }
    if (!has_buffer) return true;
    own = given;
    for (unsigned i = 0; i < check->count; ++i) {
        if (is_written(&check->arguments[i]) && !load_buffer(check, given, own, slots, i))
            return fail(fault, kNoMemory, "out of memory");
        own += texts_of(&check->arguments[i]);
    }
    return true;
}

bool ostrel_judge(const OstrelCheck* check, const OstrelText* given, OstrelWish wish, OstrelAnswer* answer,
                  OstrelFault* fault)
{
    const bool is_one_text = check->count == 1 && check->arguments[0].kind == kText;
    if (is_one_text && wish == kCode && memchr(given->bytes, '\0', given->size) == NULL) {
        OstrelSlot slot = {given->bytes, NULL, 0, 0};
        answer->code = check->call(&slot); /* most calls take this short path */
        return true;
    }
    OstrelSlot slots[kMostArguments];
    memset(slots, 0, check->count * sizeof slots[0]);
    memset(answer, 0, sizeof *answer);
    bool is_told = load(check, given, slots, fault);
    if (is_told) {
        OstrelPrints prints = {NULL, 0, 0, false};
        if (wish == kLine) ostrel_capture(&prints);
        answer->code = check->call(slots);
        if (wish == kLine) ostrel_capture(NULL);
        answer->text = prints.bytes;
        answer->size = prints.size;
        const bool is_refused = !check->is_number && answer->code != 0;
        if (wish == kAfter || ((wish == kReason || wish == kSentence) && is_refused))
            is_told = ostrel_explain(check, given, slots, wish, answer);
        if (!is_told || prints.is_lost) {
            ostrel_release(answer);
            is_told = fail(fault, kNoMemory, "out of memory");
        }
    }
    for (unsigned i = 0; i < check->count; ++i) free(slots[i].buffer);
    return is_told;
}

void ostrel_release(OstrelAnswer* answer)
{
    free(answer->text);
    answer->text = NULL;
}
