#include "sql/postgresql/values.h"

#include "lib/stringinfo.h"
#include "mb/pg_wchar.h"
#include "utils/fmgrprotos.h"

void ostrel_raise(const OstrelFault* fault)
{
    int state = ERRCODE_INVALID_PARAMETER_VALUE;
    if (fault->kind == kUnknownCheck || fault->kind == kTooFewValues || fault->kind == kTooManyValues)
        state = ERRCODE_UNDEFINED_FUNCTION;
    if (fault->kind == kNotCalled || fault->kind == kNoVerdict) state = ERRCODE_FEATURE_NOT_SUPPORTED;
    if (fault->kind == kNulByte) state = ERRCODE_CHARACTER_NOT_IN_REPERTOIRE;
    if (fault->kind == kNotAnInteger) state = ERRCODE_INVALID_TEXT_REPRESENTATION;
    if (fault->kind == kNoMemory) state = ERRCODE_OUT_OF_MEMORY;
    ereport(ERROR, (errcode(state), errmsg("%s", fault->message)));
}

OstrelText ostrel_take(Datum value, bool is_text, char* room)
{
    const struct varlena* packed = PG_DETOAST_DATUM_PACKED(value);
    OstrelText text = {VARDATA_ANY(packed), VARSIZE_ANY_EXHDR(packed)};
    const int encoding = GetDatabaseEncoding();
    if (is_text && encoding != PG_UTF8 && encoding != PG_SQL_ASCII) {
        char* converted = pg_server_to_any(text.bytes, (int)text.size, PG_UTF8);
        if (converted != text.bytes) {
            text.bytes = converted;
            text.size = strlen(converted);
            return text;
        }
    }
    if (room == NULL || text.size >= kOstrelShort) room = palloc(text.size + 1);
    memcpy(room, text.bytes, text.size);
    room[text.size] = '\0';
    text.bytes = room;
    return text;
}

char* ostrel_told(OstrelAnswer* answer)
{
    char* copy = NULL;
    if (answer->text != NULL) {
        copy = palloc_extended(answer->size + 1, MCXT_ALLOC_HUGE | MCXT_ALLOC_NO_OOM);
        if (copy != NULL) memcpy(copy, answer->text, answer->size + 1);
        ostrel_release(answer);
        if (copy == NULL) ereport(ERROR, (errcode(ERRCODE_OUT_OF_MEMORY), errmsg("out of memory")));
    }
    return copy;
}

Datum ostrel_jsonb(char* json)
{
    const int encoding = GetDatabaseEncoding();
    if (encoding != PG_UTF8 && encoding != PG_LATIN1) {
        char* to = json;
        for (const char* from = json; *from != '\0';) {
            if (from[0] != '\\') {
                *to++ = *from++;
            } else if (from[1] != 'u' || from[4] < '8') {
                *to++ = *from++;
                *to++ = *from++;
            } else {
                *to++ = '\\';
                *to++ = '\\';
                *to++ = 'x';
                *to++ = from[4];
                *to++ = from[5];
                from += 6;
            }
        }
        *to = '\0';
    }
    return DirectFunctionCall1(jsonb_in, CStringGetDatum(json));
}

char* ostrel_shown(const char* bytes, size_t size)
{
    StringInfoData out;
    const char* const end = bytes + size;
    if (GetDatabaseEncoding() == PG_SQL_ASCII) return pnstrdup(bytes, size);
    initStringInfo(&out);
    while (bytes < end) {
        const int length = pg_utf_mblen((const unsigned char*)bytes);
        if (length <= end - bytes && pg_utf8_islegal((const unsigned char*)bytes, length)) {
            appendBinaryStringInfo(&out, bytes, length);
            bytes += length;
        } else {
            appendStringInfo(&out, "\\x%02X", (unsigned char)*bytes++);
        }
    }
    return pg_any_to_server(out.data, out.len, PG_UTF8);
}
