// Texts: files of the source tree that the program carries with it.
#ifndef OSTREL_CATALOGUE_TEXTS_H
#define OSTREL_CATALOGUE_TEXTS_H

#include <string_view>
#include <vector>

namespace ostrel::catalogue {

std::vector<std::string_view> vector_files();  // vectors/*.ndjson
std::string_view decisions();                  // docs/decisions.md
std::string_view messages();  // messages.txt: the library's messages, one a line, with \n for a line end
std::string_view schema();    // catalogue.schema.json

}  // namespace ostrel::catalogue

#endif
