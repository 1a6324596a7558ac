"""What the rules are to reach on valid values: how many times as fast as a peer.

A goal that is not reached has its reason here; the table prints it beside the figure.
"""

LIBYANG = 15  # on every family
LIMIT = 3  # times the plain reading loop, for keywords and lists

GOALS = {
    "ipv4": {"inet_pton": 1.8, "PCRE2 JIT": 2, "RE2": 2, "c-ares": 2},
    "mac": {"ether_aton_r": 10, "PCRE2 JIT": 5},
    "host": {"RE2": 1.4},
    "url": {"uriparser": 3, "libcurl": 3},
    "date_time": {"strptime": 4, "PCRE2 JIT": 3},
    "printable": {"strspn": 2.5, "PCRE2 JIT": 1},
    "own_set_8": {"strspn": 1},
    "own_set_16": {"strspn": 1},
    "own_set_32": {"strspn": 1},
    "own_set_64": {"strspn": 1},
    "own_digits_8": {"strspn": 1},
}

LISTS = ("keyword", "rates", "dns_servers", "reservations")

REASONS = {
    ("ipv4", "inet_pton"): "half its instructions, but reading the bytes alone takes six tenths of our time",
    ("date_time", "PCRE2 JIT"): "2.8 times: only to read its 25 bytes takes two thirds of our time",
    ("own_digits_8", "strspn"): "for a set of up to 16 glibc has SSE4.2 string instructions, which a gateway lacks",
    ("rates", "reading"): "where the next comma stands cannot be guessed: a wrong guess an item",
    ("dns_servers", "reading"): "two addresses, the blank between them, and a wrong guess at each",
    ("reservations", "reading"): "each address is searched for in all that follow it, which is the rule",
    ("number", "libyang"): "the number is read by the C library's atoi, which takes most of the time",
    ("keyword", "libyang"): "which keyword comes cannot be guessed, and libyang does the same few comparisons",
    ("url", "libyang"): "libyang looks at the scheme and the characters only, we at the host's labels and the port",
    ("reservations", "libyang"): "libyang's pattern does not look for repeated addresses",
}
