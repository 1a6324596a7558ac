/*
 * A table that contains, for each byte, a mask of its character classes in ISO 8859-1 (Latin-1).
 *
 * Unlike <ctype.h>, the table does not depend on the locale, has no entry for EOF, and is indexed by the byte
 * as an unsigned char.
 */
#ifndef OSTREL_CHARACTER_CLASS_H
#define OSTREL_CHARACTER_CLASS_H

#include <ostrel/api.h>

enum ostrel_character_class {
    CT_UPPER = 0x01,
    CT_LOWER = 0x02,
    CT_DIGIT = 0x04,
    CT_CNTRL = 0x08,
    CT_PUNCT = 0x10,
    CT_SPACE = 0x20,
    /* CT_XLETTER: A-F and a-f, always together with CT_UPPER or CT_LOWER. A byte with CT_DIGIT or CT_XLETTER
       is a hexadecimal digit. */
    CT_XLETTER = 0x40,
    CT_BLANK = 0x80
};

/*
 * ostrel_ctype: a read-only table of the classes of each byte. The bytes 0x80 to 0x9F have no class, not even
 * CT_CNTRL. The byte 0xA0 (no-break space) has the classes CT_SPACE and CT_BLANK.
 */
OSTREL_API const unsigned char ostrel_ctype[256];

#endif
