"""Goals for the rules' speed on valid values, as multiples of a peer's speed, and the REASONS why some are missed."""

LIBYANG = 15  # the goal for every family
LIMIT = 3  # keywords and lists may take this many times as long as the plain reading loop

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
    ("ipv4", "inet_pton"): "half its instructions, but reading the bytes takes 60 % of our time",
    ("date_time", "PCRE2 JIT"): "2.8 times; reading its 25 bytes takes two thirds of our time",
    ("own_digits_8", "strspn"): "for up to 16 members glibc uses SSE4.2 string instructions, which a gateway lacks",
    ("rates", "reading"): "the position of the next comma is unpredictable: one misprediction for each item",
    ("dns_servers", "reading"): "two addresses and the blank between them, with a misprediction for each",
    ("reservations", "reading"): "the rule searches the rest of the list for each address",
    ("number", "libyang"): "the C library's atoi reads the number and takes most of the time",
    ("keyword", "libyang"): "the next keyword is unpredictable, and libyang does the same few comparisons",
    ("url", "libyang"): "libyang checks only the scheme and the characters; we check labels and the port too",
    ("reservations", "libyang"): "libyang's pattern does not detect repeated addresses",
}
