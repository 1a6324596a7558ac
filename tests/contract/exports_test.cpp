// Tests that the export list, public headers, catalogue and loaded library name the same functions and data.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <ostrel/check.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/result_codes.h"

namespace ostrel::tests {

namespace {

std::string contents(const std::filesystem::path& path)
{
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

bool is_name_character(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

std::vector<std::string> names_before(const std::string& text, std::string_view marks)
{
    std::vector<std::string> names;
    for (std::size_t end = text.find_first_of(marks); end != std::string::npos;
         end = text.find_first_of(marks, end + 1)) {
        std::size_t begin = end;
        while (begin > 0 && is_name_character(text[begin - 1])) --begin;
        if (begin < end) names.push_back(text.substr(begin, end - begin));
    }
    return names;
}

std::vector<std::string> listed_names()
{
    const std::string map = contents(OSTREL_SOURCE_DIR "/abi/exports.map");
    const std::size_t begin = map.find("global:");
    return names_before(map.substr(begin, map.find("local:") - begin), ";");
}

std::vector<std::string> catalogue_names()
{
    std::vector<std::string> names = {"ostrel_ctype"};
    for (const catalogue::Function& function : catalogue::functions()) names.emplace_back(function.name);
    return names;
}

// The paths are as hosts write them in #include. api.h is omitted, since it declares nothing.
std::vector<std::string> public_headers()
{
    const std::filesystem::path root = OSTREL_SOURCE_DIR "/include";
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file() || entry.path().filename() == "api.h") continue;
        paths.push_back(std::filesystem::relative(entry.path(), root));
    }
    return paths;
}

std::vector<std::string> declared_names()
{
    std::vector<std::string> names;
    for (const std::string& header : public_headers()) {
        const std::string text = contents(OSTREL_SOURCE_DIR "/include/" + header);
        const std::string mark = "\nOSTREL_API ";
        for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
            // The declared name precedes the first parenthesis or bracket.
            names.push_back(names_before(text.substr(at, text.find(';', at) - at), "([").front());
        }
    }
    return names;
}

// differences returns the names that occur more often in one list, to keep failure messages short.
std::vector<std::string> differences(const std::vector<std::string>& a, const std::vector<std::string>& b)
{
    const std::multiset<std::string> sorted_a(a.begin(), a.end());
    const std::multiset<std::string> sorted_b(b.begin(), b.end());
    std::vector<std::string> result;
    std::ranges::set_symmetric_difference(sorted_a, sorted_b, std::back_inserter(result));
    return result;
}

TEST(Exports, TheListHoldsEachNameOnce)
{
    std::vector<std::string> names = listed_names();
    EXPECT_FALSE(names.empty());
    std::ranges::sort(names);
    const auto repeated = std::ranges::adjacent_find(names);
    EXPECT_EQ(names.end(), repeated) << *repeated << " is listed twice";
}

TEST(Exports, TheListHasOneUnnamedVersionAndSpellsEveryName)
{
    std::string map = contents(OSTREL_SOURCE_DIR "/abi/exports.map");
    std::erase_if(map, [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; });
    std::string expected = "{global:";
    for (const std::string& name : listed_names()) expected += name + ";";
    EXPECT_EQ(expected + "local:*;};", map);
}

TEST(Exports, TheCatalogueDescribesEveryExportedFunctionOnce)
{
    EXPECT_EQ(std::vector<std::string>(), differences(listed_names(), catalogue_names()));
}

TEST(Exports, TheHeadersDeclareWhatIsListed)
{
    EXPECT_EQ(std::vector<std::string>(), differences(listed_names(), declared_names()));
}

// A header that is named after a folder includes all headers in that folder.
TEST(Exports, CheckHeaderIncludesEveryOther)
{
    const std::string include = OSTREL_SOURCE_DIR "/include/";
    for (const std::string& header : public_headers()) {
        if (header == "ostrel/check.h") continue;
        const std::filesystem::path folder = std::filesystem::path(header).parent_path();
        const std::string collector = folder == "ostrel" ? "ostrel/check.h" : folder.string() + ".h";
        EXPECT_NE(std::string::npos, contents(include + collector).find("#include <" + header + ">"))
            << header;
    }
}

TEST(Exports, EachEntryIsTheFunctionOfItsName)
{
    for (const catalogue::Function& function : catalogue::functions()) {
        const std::string name(function.name);
        EXPECT_EQ(function.address, dlsym(RTLD_DEFAULT, name.c_str())) << name;
    }
    EXPECT_EQ(static_cast<const void*>(ostrel_ctype), dlsym(RTLD_DEFAULT, "ostrel_ctype"));
}

// Every name must be defined in this build's library or, if LD_LIBRARY_PATH selects a variant, in that one.
TEST(Exports, TheLibraryThatIsAskedForIsLoaded)
{
    const char* asked_for = std::getenv("LD_LIBRARY_PATH");  // NOLINT(concurrency-mt-unsafe)
    const std::string folder = asked_for != nullptr ? asked_for : OSTREL_LIBRARY_DIR;
    void* library = dlopen("libostrel_check.so", RTLD_NOW | RTLD_NOLOAD);
    ASSERT_NE(nullptr, library) << dlerror();
    for (const std::string& name : listed_names()) {
        void* address = dlsym(library, name.c_str());
        ASSERT_NE(nullptr, address) << name;
        Dl_info info{};
        ASSERT_NE(0, dladdr(address, &info)) << name;
        EXPECT_TRUE(std::filesystem::equivalent(folder + "/libostrel_check.so", info.dli_fname))
            << info.dli_fname;
    }
    dlclose(library);
}

TEST(ResultCodes, HaveTheNamesOfTheHeaderAndAMeaning)
{
    const std::string header = contents(OSTREL_SOURCE_DIR "/include/ostrel/result_code.h");
    const std::regex enumerator("(OSTREL_\\w+) = (-?\\d+)");
    const std::string_view unknown = catalogue::meaning(1);
    int count = 0;
    for (std::sregex_iterator one(header.begin(), header.end(), enumerator), end; one != end; ++one) {
        const int code = std::stoi(one->str(2));
        EXPECT_EQ(one->str(1), catalogue::constant(code));
        EXPECT_NE(unknown, catalogue::meaning(code)) << one->str();
        ++count;
    }
    EXPECT_LT(1, count);
    EXPECT_EQ("", catalogue::constant(1));
}

}  // namespace

}  // namespace ostrel::tests
