# Makes the headers' comments, which are plain text, into comments that doxygen takes as they are.
1s,^/\*$,/** \\file\n * \\verbatim,
s,^/\*$,/** \\verbatim,
s,^ \*/$, \\endverbatim */,
s,^/\* \(.*\) \*/$,/** \1 */,
