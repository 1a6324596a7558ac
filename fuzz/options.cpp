#include "fuzz/options.h"

#include <CLI/CLI.hpp>
#include <cstdlib>

namespace ostrel::fuzz {

ReplayOptions read_options(int argc, char** argv)
{
    ReplayOptions options;
    CLI::App app(
        "Runs the calls of the vectors, kept inputs and random ones, without an engine. The exit code is 1 "
        "if the "
        "library and a description differ on any, or if a reason is incomplete or false.");
    app.add_option("--random", options.random, "number of inputs to make, in equal shares for each function");
    app.add_option("--refusals", options.refusals, "make inputs until so many are refused, in equal shares");
    app.add_option("--seed", options.seed, "of the random inputs");
    app.add_option("--check", options.check, "run the inputs of this function alone");
    app.add_option("--table", options.table, "file for the counts of steps and conditions");
    app.add_option("--with", options.with, "such a file of an earlier run, whose counts are added");
    app.add_option(
        "--floor", options.floor,
        "fail if a step or condition is met less often, or if one step less than the advice of an id never "
        "has its reason");
    app.add_option("folder", options.folders, "folder with a folder of inputs for each family");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        std::exit(app.exit(error));
    }
    return options;
}

}  // namespace ostrel::fuzz
