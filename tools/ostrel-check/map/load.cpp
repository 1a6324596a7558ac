#include "map/load.h"

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>
#include <utility>

#include "catalogue/names.h"
#include "map/document.h"

namespace ostrel::tool {

namespace {

using catalogue::Argument;
using nlohmann::ordered_json;

std::vector<Argument> given_arguments(const catalogue::Function& function)
{
    std::vector<Argument> given(function.arguments.begin(), function.arguments.end());
    std::erase_if(given, [](const Argument& one) { return one.is_only_written(); });
    return given;
}

class Loader {
 public:
    Loader(const std::string& file, Encoding encoding) : document_(file), encoding_(encoding) {}

    Map load()
    {
        const ordered_json& root = document_.root();
        document_.require_members("", root,
                                  {"$schema", "about", "root", "facts", "parameters", "not_mapped"});
        map_.file = document_.file();
        map_.about = document_.text("", root, "about");
        map_.root = document_.text("", root, "root");
        if (!map_.root.empty() && !map_.root.ends_with('.')) document_.complain("/root", "must end in \".\"");
        if (const std::string facts = document_.text("", root, "facts"); !facts.empty()) {
            map_.facts = (std::filesystem::path(map_.file).parent_path() / facts).string();
        }
        const ordered_json& parameters = document_.array("", root, "parameters", true);
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            add_entry("/parameters/" + std::to_string(i), parameters[i]);
        }
        if (map_.entries.empty()) document_.complain("/parameters", "must not be empty");
        const ordered_json& others = document_.array("", root, "not_mapped", false);
        for (std::size_t i = 0; i < others.size(); ++i) {
            add_not_mapped("/not_mapped/" + std::to_string(i), others[i]);
        }
        return std::move(map_);
    }

 private:
    std::string bytes_of(const std::string& at, std::string_view text)
    {
        std::string bytes;
        try {
            encode(bytes, text, encoding_);
        } catch (const std::invalid_argument& error) {
            document_.complain(at, error.what());
        }
        return bytes;
    }

    std::string argument_of(const std::string& at, const ordered_json& value)
    {
        return value.is_number_integer() ? value.dump() : bytes_of(at, document_.text_of(at, value));
    }

    std::optional<WordTable> words(const std::string& at, const ordered_json& object)
    {
        const auto found = object.find("words");
        if (found == object.end()) return std::nullopt;
        if (!found->is_object()) document_.complain(at + "/words", "must be an object");
        if (found->empty()) document_.complain(at + "/words", "must not be empty");
        WordTable result;
        for (const auto& [word, value] : found->items()) {
            const std::string place = at + "/words/" + word;
            result.emplace(bytes_of(place, word), argument_of(place, value));
        }
        return result;
    }

    PathPattern path(const std::string& at, const std::string& relative)
    {
        const std::string full = map_.root + relative;
        std::string_view rest = full;
        while (true) {
            const std::size_t end = std::min(rest.find('.'), rest.size());
            const std::string_view name = rest.substr(0, end);
            if (name.empty()) document_.complain(at, "the path has an empty name");
            if (name.find_first_of("{}") != std::string_view::npos && name != kInstance)
                document_.complain(at, "braces are allowed only in {i}, which must be a whole name");
            if (end == rest.size()) return PathPattern(full);
            rest.remove_prefix(end + 1);
        }
    }

    PathPattern sibling(const std::string& at, const std::string& relative, const MapEntry& entry)
    {
        PathPattern pattern = path(at, relative);
        if (pattern.wildcards() > entry.path.wildcards())
            document_.complain(at, "has more {i} than the path of the parameter");
        map_.paths[pattern.general()].is_sibling = true;
        return pattern;
    }

    void add_entry(const std::string& at, const ordered_json& object)
    {
        document_.require_members(at, object,
                                  {"path", "check", "value", "with", "words", "skip", "try", "because"});
        MapEntry entry;
        entry.line = document_.line_of(at);
        entry.path = path(at + "/path", document_.text(at, object, "path", true));
        const std::string name = document_.text(at, object, "check", true);
        entry.function = catalogue::find(name);
        if (entry.function == nullptr) document_.complain(at + "/check", catalogue::unknown_function(name));
        entry.because = document_.text(at, object, "because");
        for (const std::string& text : document_.texts(at, object, "skip"))
            entry.skipped.push_back(bytes_of(at + "/skip", text));
        entry.tried = document_.texts(at, object, "try");
        add_sources(at, object, entry);
        if (!known_.insert(entry.path.general() + "\n" + name).second)
            document_.complain(at, "the parameter already has this check");
        entry.call = calls_.emplace(call_of(entry), calls_.size()).first->second;
        map_.paths[entry.path.general()].entries.push_back(map_.entries.size());
        map_.entries.push_back(std::move(entry));
    }

    void add_sources(const std::string& at, const ordered_json& object, MapEntry& entry)
    {
        const std::vector<Argument> given = given_arguments(*entry.function);
        static const ordered_json kNone = ordered_json::object();
        const auto found = object.find("with");
        const ordered_json& with = found == object.end() ? kNone : *found;
        if (!with.is_object()) document_.complain(at + "/with", "must be an object");
        std::string value = document_.text(at, object, "value");
        if (value.empty() && given.size() == 1 && !with.contains(std::string(given[0].name)))
            value = given[0].name;
        entry.value = given.size();
        for (std::size_t i = 0; i < given.size(); ++i) {
            const std::string name(given[i].name);
            if (name == value) {
                if (given[i].kind == catalogue::Kind::kBlocks)
                    document_.complain(
                        at, "the argument \"" + name +
                                "\" consists of several strings; name their \"paths\" in \"with\"");
                entry.value = i;
                entry.sources.push_back({Source::Kind::kValue, {}, words(at, object)});
            } else if (with.contains(name)) {
                entry.sources.push_back(source(at + "/with/" + name, with[name], given[i], entry));
            } else {
                document_.complain(at, "no source is given for the argument \"" + name + "\"");
            }
        }
        for (const auto& item : with.items()) {
            const std::string& name = item.key();
            const bool is_known =
                std::ranges::any_of(given, [&](const Argument& one) { return one.name == name; });
            if (!is_known || name == value) complain_of_argument(at + "/with/" + name, entry, is_known);
        }
        if (!value.empty() && entry.value == given.size()) complain_of_argument(at + "/value", entry, false);
        entry.has_siblings = std::ranges::any_of(
            entry.sources, [](const Source& one) { return one.kind == Source::Kind::kSibling; });
        if (entry.value == given.size() && object.contains("words"))
            document_.complain(at + "/words",
                               "\"words\" requires that the value is an argument of the check");
    }

    [[noreturn]] void complain_of_argument(const std::string& at, const MapEntry& entry, bool is_value)
    {
        if (is_value) document_.complain(at, "this argument already is the parameter's value");
        std::string names;
        for (const Argument& one : given_arguments(*entry.function))
            names.append(names.empty() ? "" : ", ").append(one.name);
        document_.complain(
            at, std::string(entry.function->name) + " has no such argument; its arguments are " + names);
    }

    Source source(const std::string& at, const ordered_json& object, const Argument& argument,
                  const MapEntry& entry)
    {
        document_.require_members(at, object, {"path", "paths", "constant", "words", "example"});
        const int kinds = object.contains("path") + object.contains("paths") + object.contains("constant");
        if (kinds != 1)
            document_.complain(at, "exactly one of \"path\", \"paths\" and \"constant\" is required");
        Source source;
        source.example = object.contains("example") ? argument_of(at + "/example", object["example"]) : "";
        source.words = words(at, object);
        if (const auto constant = object.find("constant"); constant != object.end()) {
            source.kind = Source::Kind::kConstant;
            source.constant = argument_of(at + "/constant", *constant);
            return source;
        }
        source.kind = Source::Kind::kSibling;
        if (object.contains("path")) {
            source.paths.push_back(sibling(at + "/path", document_.text(at, object, "path"), entry));
        }
        const std::vector<std::string> paths = document_.texts(at, object, "paths");
        for (std::size_t i = 0; i < paths.size(); ++i)
            source.paths.push_back(sibling(at + "/paths/" + std::to_string(i), paths[i], entry));
        if (source.paths.size() != argument.blocks)
            document_.complain(at, "the number of paths must be " + std::to_string(argument.blocks));
        if (argument.is_number() && !source.words && !source.example.empty() &&
            source.example.find_first_not_of("-0123456789") != std::string::npos)
            document_.complain(at + "/example", "must be a number");
        return source;
    }

    // call_of returns the same key for entries that make the same call for different parameters.
    static std::string call_of(const MapEntry& entry)
    {
        std::string name(entry.function->name);
        for (const Source& source : entry.sources) {
            name += '\n';
            if (source.kind == Source::Kind::kValue) name += entry.path.text();
            for (const PathPattern& one : source.paths) name.append(one.text()).append(" ");
            if (name.ends_with(' ')) name.pop_back();
            if (source.kind == Source::Kind::kConstant) name.append("=").append(source.constant);
        }
        return name;
    }

    void add_not_mapped(const std::string& at, const ordered_json& object)
    {
        document_.require_members(at, object, {"path", "check", "because"});
        NotMapped one;
        one.path = path(at + "/path", document_.text(at, object, "path", true)).text();
        one.check = document_.text(at, object, "check");
        if (!one.check.empty() && catalogue::find(one.check) == nullptr)
            document_.complain(at + "/check", catalogue::unknown_function(one.check));
        one.because = document_.text(at, object, "because", true);
        map_.not_mapped.push_back(std::move(one));
    }

    Document document_;
    Encoding encoding_;
    Map map_;
    std::set<std::string> known_;
    std::unordered_map<std::string, std::size_t> calls_;
};

}  // namespace

Map load_map(const std::string& file, Encoding encoding) { return Loader(file, encoding).load(); }

}  // namespace ostrel::tool
