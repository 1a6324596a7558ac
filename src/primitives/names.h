// The name rules that other rules call; the exported ones are <ostrel/names.h>.
#ifndef OSTREL_PRIMITIVES_NAMES_H
#define OSTREL_PRIMITIVES_NAMES_H

#include <string_view>

namespace ostrel {

int validate_port_mapping_description(std::string_view value);

int validate_router_name(std::string_view value);

}  // namespace ostrel

#endif
