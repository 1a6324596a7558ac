// The two utilities of the host process: the one place that knows them.
//
// They are imported weakly. Where the loading process supplies one it is called; where it does not, the
// library loads and works all the same, with an equivalent of its own.
#ifndef OSTREL_SUPPORT_HOST_H
#define OSTREL_SUPPORT_HOST_H

namespace ostrel {

// host_equals compares with the host's cmsUtl_strcmp, or else byte by byte.
bool host_equals(const char* a, const char* b);

// resolve_references rewrites the HTML character references of the text in place with the host's htmlToText,
// or else as convert_references does.
void resolve_references(char* text);

}  // namespace ostrel

#endif
