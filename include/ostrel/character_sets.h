/*
 * Character sets for ValidateString and the checks, written as strings that contain the allowed characters.
 *
 * Order and repetition have no effect. The strings consist of bytes, and the Latin-1 set contains single
 * bytes of ISO 8859-1, not UTF-8.
 */
#ifndef OSTREL_CHARACTER_SETS_H
#define OSTREL_CHARACTER_SETS_H

/* CHARSET_DIGITS: the 10 decimal digits. */
#define CHARSET_DIGITS "0123456789"

/* CHARSET_ALNUM: the 62 digits and letters. */
#define CHARSET_ALNUM "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"

/* CHARSET_PPP_DIGITS: for the local part of an ISP account name, whose fields are separated by "#". */
#define CHARSET_PPP_DIGITS "0123456789#"

/* CHARSET_HEX: the 22 hexadecimal digits, in both cases. */
#define CHARSET_HEX "0123456789ABCDEFabcdef"

/* CHARSET_ASCII_PRINTABLE: the 95 characters 0x20 (space) to 0x7E (tilde), in code order. */
#define CHARSET_ASCII_PRINTABLE         \
    " !\"#$%&'()*+,-./0123456789:;<=>?" \
    "@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_" \
    "`abcdefghijklmnopqrstuvwxyz{|}~"

/* CHARSET_LATIN1_PRINTABLE: the printable ASCII characters and the 95 bytes 0xA1 to 0xFF; 190 bytes in all.
   0xA0 (no-break space) is not included. */
#define CHARSET_LATIN1_PRINTABLE                                       \
    CHARSET_ASCII_PRINTABLE                                            \
    "\xA1\xA2\xA3\xA4\xA5\xA6\xA7\xA8\xA9\xAA\xAB\xAC\xAD\xAE\xAF"     \
    "\xB0\xB1\xB2\xB3\xB4\xB5\xB6\xB7\xB8\xB9\xBA\xBB\xBC\xBD\xBE\xBF" \
    "\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF" \
    "\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD7\xD8\xD9\xDA\xDB\xDC\xDD\xDE\xDF" \
    "\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF" \
    "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF7\xF8\xF9\xFA\xFB\xFC\xFD\xFE\xFF"

/* CHARSET_IPV4: for a dotted IPv4 address. */
#define CHARSET_IPV4 "0123456789."

/* CHARSET_HOST: for a label of a host name; it contains neither "." nor "_". */
#define CHARSET_HOST "01234567890ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-"

/* CHARSET_URL: for a URL; it contains none of "@", "%", "=", "&", "#" and "~". */
#define CHARSET_URL "01234567890ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_./:?"

/* CHARSET_NAME: for provider names and passwords. */
#define CHARSET_NAME "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-._"

/* CHARSET_MAIL: for an e-mail address. */
#define CHARSET_MAIL "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-.@"

/* CHARSET_HOSTPORT: for the host and port of a server. */
#define CHARSET_HOSTPORT "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-._:"

/* CHARSET_DESCRIPTION: every printable ASCII character, 95 bytes. */
#define CHARSET_DESCRIPTION           \
    " \"|/\\+'@!%#$&()*,.:;<=>?[]^_`" \
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz{}~-"

/* CHARSET_DEVICE_NAME: every printable ASCII character, with "@", "!" and "%" repeated; 98 bytes. */
#define CHARSET_DEVICE_NAME           \
    " \"|/\\+'@!%#$&()*,.:;<=>?[]^_`" \
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz@!%{}~-"

/* CHARSET_ROUTER_NAME: letters, digits and the characters ! ( ) * - / ; ? and _. */
#define CHARSET_ROUTER_NAME "!()*-/0123456789;?ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz"

/* CHARSET_CIS_NAME: for a device name on the LAN: space, digits, letters and "-". */
#define CHARSET_CIS_NAME " 0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-abcdefghijklmnopqrstuvwxyz"

/* CHARSET_IDENT_LETTERS: the characters with which a device name may begin. */
#define CHARSET_IDENT_LETTERS "ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz"

#endif
