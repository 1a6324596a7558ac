#include "fuzz/seeds.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

namespace ostrel::fuzz {

std::string read_file(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<catalogue::Case> read_vectors(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".ndjson") files.push_back(entry.path());
    }
    std::ranges::sort(files);
    std::vector<catalogue::Case> cases;
    for (const auto& file : files) {
        std::istringstream lines(read_file(file));
        for (std::string line; std::getline(lines, line);) {
            if (!line.empty()) cases.push_back(catalogue::case_from_json(nlohmann::json::parse(line)));
        }
    }
    if (cases.empty()) throw std::runtime_error("no vectors in " + folder.string());
    return cases;
}

}  // namespace ostrel::fuzz
