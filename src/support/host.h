// The two functions that the host process may supply, as weak imports. Only this module refers to them. If
// the host process does not supply one, the library uses its own equivalent.
#ifndef OSTREL_SUPPORT_HOST_H
#define OSTREL_SUPPORT_HOST_H

namespace ostrel {

// host_equals compares two strings with the host's cmsUtl_strcmp, or byte by byte if there is none.
bool host_equals(const char* a, const char* b);

// resolve_references calls the host's htmlToText, or convert_references if there is none, to replace the HTML
// character references in a string in place.
void resolve_references(char* text);

}  // namespace ostrel

#endif
