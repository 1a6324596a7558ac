// The two utilities of the host process; only this module refers to them.
//
// They are imported weakly: if the loading process supplies one, it is called; otherwise the library uses its own
// equivalent.
#ifndef OSTREL_SUPPORT_HOST_H
#define OSTREL_SUPPORT_HOST_H

namespace ostrel {

// host_equals compares with the host's cmsUtl_strcmp, or byte by byte if there is none.
bool host_equals(const char* a, const char* b);

// resolve_references replaces the HTML character references of the text in place with the host's htmlToText, or with
// convert_references if there is none.
void resolve_references(char* text);

}  // namespace ostrel

#endif
