// Options of the batch command that control how its files are read.
#ifndef OSTREL_TOOLS_COMMAND_LINE_READING_OPTIONS_H
#define OSTREL_TOOLS_COMMAND_LINE_READING_OPTIONS_H

#include <CLI/CLI.hpp>

#include "read/reading.h"

namespace ostrel::tool {

// add_reading adds the options. Parsing stores their values in reading, which must outlive the command.
void add_reading(CLI::App& batch, Reading& reading);

}  // namespace ostrel::tool

#endif
