/*
 * SQLite functions for the checks, which docs/sql.md describes. They are deterministic and use only their
 * arguments, so they may be called from CHECK constraints, from indexes, and from untrusted schemas.
 */
#include <sqlite3ext.h>
#include <string.h>

#include "sql/common/judge.h"

SQLITE_EXTENSION_INIT1

/* sqlite3_ostrel_init is the entry point that SQLite calls when it loads the extension. */
__attribute__((visibility("default"))) int sqlite3_ostrel_init(sqlite3* database, char** error,
                                                               const sqlite3_api_routines* api);

/* OstrelQuestion describes the result of a function that takes the name of a check. */
typedef struct {
    const char* sql_name;
    OstrelWish wish;
    bool is_verdict; /* whether naming a check that returns a number is an error */
    bool is_valid;   /* whether the result is true or false instead of the code */
} OstrelQuestion;

static const OstrelQuestion kQuestions[] = {
    {"ostrel_code", kCode, false, false},    {"ostrel_valid", kCode, true, true},
    {"ostrel_reason", kReason, true, false}, {"ostrel_line", kLine, false, false},
    {"ostrel_after", kAfter, false, false},
};

static const OstrelQuestion kCodeAlone = {"", kCode, false, false};

/* take stores a value's bytes (text as UTF-8), followed by a NUL byte. The caller frees *copy. */
static bool take(sqlite3_value* value, int type, OstrelText* text, char** copy)
{
    if (type != SQLITE_BLOB) {
        text->bytes = (const char*)sqlite3_value_text(value);
        text->size = (size_t)sqlite3_value_bytes(value);
        return text->bytes != NULL;
    }
    const void* blob = sqlite3_value_blob(value); /* NULL if the blob is empty */
    text->size = (size_t)sqlite3_value_bytes(value);
    *copy = sqlite3_malloc64(text->size + 1);
    if (*copy == NULL) return false;
    if (text->size > 0) memcpy(*copy, blob, text->size);
    (*copy)[text->size] = '\0';
    text->bytes = *copy;
    return true;
}

static void answer_with(sqlite3_context* context, const OstrelCheck* check, const OstrelQuestion* question,
                        const OstrelText* given)
{
    OstrelAnswer answer;
    OstrelFault fault;
    if (!ostrel_judge(check, given, question->wish, &answer, &fault)) {
        if (fault.kind == kNoMemory) {
            sqlite3_result_error_nomem(context);
        } else {
            sqlite3_result_error(context, fault.message, -1);
        }
    } else if (question->wish == kCode) {
        sqlite3_result_int(context, question->is_valid ? answer.code == 0 : answer.code);
    } else if (answer.text != NULL) {
        sqlite3_result_text64(context, answer.text, answer.size, SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    if (question->wish != kCode) ostrel_release(&answer);
}

static void judge(sqlite3_context* context, const OstrelCheck* check, const OstrelQuestion* question,
                  int count, sqlite3_value** values)
{
    OstrelText given[kMostArguments];
    char* copies[kMostArguments] = {NULL, NULL, NULL, NULL};
    bool has_null = false;
    bool is_taken = true;
    for (int i = 0; i < count && is_taken && !has_null; ++i) {
        const int type = sqlite3_value_type(values[i]);
        has_null = type == SQLITE_NULL;
        is_taken = has_null || take(values[i], type, &given[i], &copies[i]);
    }
    if (!is_taken) {
        sqlite3_result_error_nomem(context);
    } else if (!has_null) {
        answer_with(context, check, question, given);
    }
    for (int i = 0; i < count; ++i) {
        if (copies[i] != NULL) sqlite3_free(copies[i]);
    }
}

static void call_check(sqlite3_context* context, int count, sqlite3_value** values)
{
    const OstrelCheck* const check = sqlite3_user_data(context);
    OstrelFault fault;
    if (ostrel_is_callable(check, (size_t)count, false, &fault)) {
        judge(context, check, &kCodeAlone, count, values);
    } else {
        sqlite3_result_error(context, fault.message, -1);
    }
}

/* The first argument names the check. If it is a constant, SQLite keeps the check for later calls. */
static void call_question(sqlite3_context* context, int count, sqlite3_value** values)
{
    const OstrelQuestion* const question = sqlite3_user_data(context);
    OstrelFault fault;
    if (count == 0) {
        sqlite3_result_error(context, "the first argument must be the name of a check", -1);
        return;
    }
    const OstrelCheck* check = sqlite3_get_auxdata(context, 0);
    if (check == NULL) {
        OstrelText name;
        char* copy = NULL;
        const int type = sqlite3_value_type(values[0]);
        if (type == SQLITE_NULL) return;
        if (!take(values[0], type, &name, &copy)) {
            sqlite3_result_error_nomem(context);
            return;
        }
        check = ostrel_choose_check(name.bytes, name.size, (size_t)count - 1, question->is_verdict, &fault);
        sqlite3_free(copy);
        if (check == NULL) {
            sqlite3_result_error(context, fault.message, -1);
            return;
        }
        sqlite3_set_auxdata(context, 0, (void*)check, NULL);
    }
    judge(context, check, question, count - 1, values + 1);
}

int sqlite3_ostrel_init(sqlite3* database, char** error, const sqlite3_api_routines* api)
{
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    int status = SQLITE_OK;
    SQLITE_EXTENSION_INIT2(api);
    (void)error;
    for (size_t i = 0; i < sizeof kQuestions / sizeof kQuestions[0] && status == SQLITE_OK; ++i)
        status = sqlite3_create_function_v2(database, kQuestions[i].sql_name, -1, flags,
                                            (void*)&kQuestions[i], call_question, NULL, NULL, NULL);
    for (size_t i = 0; i < ostrel_check_count && status == SQLITE_OK; ++i)
        status = sqlite3_create_function_v2(database, ostrel_checks[i].sql_name, (int)ostrel_checks[i].texts,
                                            flags, (void*)&ostrel_checks[i], call_check, NULL, NULL, NULL);
    return status;
}
