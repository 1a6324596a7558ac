#include "fuzz/options.h"

#include <CLI/CLI.hpp>
#include <cstdlib>

namespace ostrel::fuzz {

ReplayOptions read_options(int argc, char** argv)
{
    ReplayOptions options;
    CLI::App app(
        "Runs the calls in the vectors, kept inputs and random inputs without a fuzzing engine. The exit "
        "code is 1 if the library and a description differ for any input, or if a reason is incomplete or "
        "false.");
    app.add_option("--random", options.random,
                   "number of random inputs, with an equal share for each function");
    app.add_option("--refusals", options.refusals,
                   "make inputs until this number has been refused, with an equal share for each function");
    app.add_option("--seed", options.seed, "seed of the random inputs");
    app.add_option("--check", options.check, "run only the inputs of this function");
    app.add_option("--table", options.table, "file to which the counts of steps and conditions are written");
    app.add_option("--with", options.with, "such a file from an earlier run, whose counts are added");
    app.add_option(
        "--floor", options.floor,
        "fail if a step or condition is met fewer times than this, or if a call one step short of the advice "
        "for an id is never refused for the same reason");
    app.add_option("folder", options.folders, "folder that contains a folder of inputs for each family");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        std::exit(app.exit(error));
    }
    return options;
}

}  // namespace ostrel::fuzz
