/*
 * PostgreSQL functions for the checks, which docs/sql.md describes. A fault is raised as an error only after
 * ostrel_judge has returned, because raising it inside would skip the cleanup.
 */
#include "postgres.h"

#include "catalog/pg_type.h"
#include "fmgr.h"
#include "sql/postgresql/values.h"
#include "utils/array.h"
#include "utils/builtins.h"

PG_MODULE_MAGIC;

static void judge(const OstrelCheck* check, const OstrelText* given, OstrelWish wish, OstrelAnswer* answer)
{
    OstrelFault fault;
    if (!ostrel_judge(check, given, wish, answer, &fault)) ostrel_raise(&fault);
}

/* judge_one implements the SQL function for one check, which takes text, integer and bigint arguments. */
static Datum judge_one(FunctionCallInfo fcinfo, const OstrelCheck* check)
{
    OstrelFault fault;
    OstrelAnswer answer;
    OstrelText given[kMostArguments];
    char room[kMostArguments][kOstrelShort];
    const OstrelArgument* argument = check->arguments;
    if (!ostrel_is_callable(check, (size_t)PG_NARGS(), false, &fault)) ostrel_raise(&fault);
    for (int i = 0; i < PG_NARGS(); ++i, argument += argument->kind == kBlocks ? 0 : 1) {
        if (argument->kind == kInteger || argument->kind == kUnsigned) {
            const long long number = argument->kind == kInteger ? PG_GETARG_INT32(i) : PG_GETARG_INT64(i);
            given[i].size = (size_t)snprintf(room[i], kOstrelShort, "%lld", number);
            given[i].bytes = room[i];
        } else {
            given[i] = ostrel_take(PG_GETARG_DATUM(i), true, room[i]);
        }
    }
    judge(check, given, kCode, &answer);
    PG_RETURN_INT32(answer.code);
}

#define OSTREL_CHECK(index, name)             \
    PG_FUNCTION_INFO_V1(ostrel_check_##name); \
    Datum ostrel_check_##name(PG_FUNCTION_ARGS) { return judge_one(fcinfo, &ostrel_checks[index]); }
#include "sql/postgresql/functions.inc"

/* OstrelCall is a call of a named check, with the values from a text[] or bytea[]. */
typedef struct {
    const OstrelCheck* check;
    OstrelText given[kMostArguments];
    bool is_text;
} OstrelCall;

/* choose finds the check and keeps it for the next row of the query, which usually names the same check. */
static const OstrelCheck* choose(FunctionCallInfo fcinfo, size_t count, bool is_verdict)
{
    const text* name = PG_GETARG_TEXT_PP(0);
    const char* bytes = VARDATA_ANY(name);
    const size_t size = VARSIZE_ANY_EXHDR(name);
    const OstrelCheck* check = fcinfo->flinfo->fn_extra;
    OstrelFault fault;
    if (check != NULL && check->texts == count && strncmp(check->name, bytes, size) == 0 &&
        check->name[size] == '\0')
        return check;
    check = ostrel_choose_check(bytes, size, count, is_verdict, &fault);
    if (check == NULL) ostrel_raise(&fault);
    fcinfo->flinfo->fn_extra = (void*)check;
    return check;
}

/* prepare returns false if an element of the array is NULL. STRICT applies only to the array itself. */
static bool prepare(FunctionCallInfo fcinfo, bool is_verdict, OstrelCall* call)
{
    ArrayType* array = PG_GETARG_ARRAYTYPE_P(1);
    Datum* values;
    bool* nulls;
    int count;
    call->is_text = ARR_ELEMTYPE(array) == TEXTOID;
    deconstruct_array(array, ARR_ELEMTYPE(array), -1, false, TYPALIGN_INT, &values, &nulls, &count);
    call->check = choose(fcinfo, (size_t)count, is_verdict);
    for (int i = 0; i < count; ++i) {
        if (nulls[i]) return false;
    }
    for (int i = 0; i < count; ++i) call->given[i] = ostrel_take(values[i], call->is_text, NULL);
    return true;
}

PG_FUNCTION_INFO_V1(ostrel_code);
PG_FUNCTION_INFO_V1(ostrel_valid);
PG_FUNCTION_INFO_V1(ostrel_reason);
PG_FUNCTION_INFO_V1(ostrel_line);
PG_FUNCTION_INFO_V1(ostrel_after);
PG_FUNCTION_INFO_V1(ostrel_require);

Datum ostrel_code(PG_FUNCTION_ARGS)
{
    OstrelCall call;
    OstrelAnswer answer;
    if (!prepare(fcinfo, false, &call)) PG_RETURN_NULL();
    judge(call.check, call.given, kCode, &answer);
    PG_RETURN_INT32(answer.code);
}

Datum ostrel_valid(PG_FUNCTION_ARGS)
{
    OstrelCall call;
    OstrelAnswer answer;
    if (!prepare(fcinfo, true, &call)) PG_RETURN_NULL();
    judge(call.check, call.given, kCode, &answer);
    PG_RETURN_BOOL(answer.code == 0);
}

static Datum answer_json(FunctionCallInfo fcinfo, OstrelWish wish)
{
    OstrelCall call;
    OstrelAnswer answer;
    char* json;
    if (!prepare(fcinfo, wish == kReason, &call)) PG_RETURN_NULL();
    judge(call.check, call.given, wish, &answer);
    json = ostrel_told(&answer);
    if (json == NULL) PG_RETURN_NULL();
    return ostrel_jsonb(json);
}

Datum ostrel_reason(PG_FUNCTION_ARGS) { return answer_json(fcinfo, kReason); }

Datum ostrel_after(PG_FUNCTION_ARGS) { return answer_json(fcinfo, kAfter); }

/* ostrel_line returns text or bytea, depending on the type of its values. */
Datum ostrel_line(PG_FUNCTION_ARGS)
{
    OstrelCall call;
    OstrelAnswer answer;
    char* line;
    size_t size;
    if (!prepare(fcinfo, false, &call)) PG_RETURN_NULL();
    judge(call.check, call.given, kLine, &answer);
    size = answer.size;
    line = ostrel_told(&answer);
    if (line == NULL) PG_RETURN_NULL();
    if (!call.is_text) PG_RETURN_BYTEA_P(cstring_to_text_with_len(line, (int)size));
    PG_RETURN_TEXT_P(cstring_to_text(ostrel_shown(line, size)));
}

/*
 * ostrel_require returns true, or raises an error whose DETAIL is the reason. The server writes DETAIL to its
 * log, so it contains only lengths if the check has a secret argument.
 */
Datum ostrel_require(PG_FUNCTION_ARGS)
{
    OstrelCall call;
    OstrelAnswer answer;
    char* detail;
    int code;
    if (!prepare(fcinfo, true, &call)) PG_RETURN_NULL();
    judge(call.check, call.given, kCode, &answer);
    if (answer.code == 0) PG_RETURN_BOOL(true);
    code = answer.code;
    judge(call.check, call.given, kSentence, &answer);
    detail = ostrel_told(&answer);
    if (detail != NULL) detail = ostrel_shown(detail, strlen(detail));
    ereport(ERROR, (errcode(ERRCODE_CHECK_VIOLATION),
                    errmsg("%s refuses the value with code %d", call.check->name, code),
                    detail == NULL || *detail == '\0' ? 0 : errdetail("%s", detail)));
}
