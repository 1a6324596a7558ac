// Document: JSON with the line of each part, for messages about files that people write.
#ifndef OSTREL_TOOLS_MAP_DOCUMENT_H
#define OSTREL_TOOLS_MAP_DOCUMENT_H

#include <cstddef>
#include <initializer_list>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

class Document {
 public:
    // Reads a file. Throws std::invalid_argument with a message for the user.
    explicit Document(std::string file);

    [[nodiscard]] const std::string& file() const { return file_; }
    [[nodiscard]] const nlohmann::ordered_json& root() const { return root_; }

    // line_of returns the line of a part, named as in RFC 6901.
    [[nodiscard]] std::size_t line_of(const std::string& pointer) const;

    // complain throws std::invalid_argument: "FILE:LINE: POINTER: PROBLEM".
    [[noreturn]] void complain(const std::string& pointer, std::string_view problem) const;

    // These functions read the part at pointer, and complain if it is not of the expected kind.
    using Json = nlohmann::ordered_json;
    void require_members(const std::string& pointer, const Json& object,
                         std::initializer_list<std::string_view> names) const;

    // text returns a member, or an empty text if it is missing and not needed. text_of returns a part.
    [[nodiscard]] std::string text(const std::string& pointer, const Json& object, const char* name,
                                   bool is_needed = false) const;
    [[nodiscard]] std::string text_of(const std::string& pointer, const Json& value) const;

    // array returns a member, or an empty array if it is missing and not needed. texts returns its elements.
    [[nodiscard]] const Json& array(const std::string& pointer, const Json& object, const char* name,
                                    bool is_needed) const;
    [[nodiscard]] std::vector<std::string> texts(const std::string& pointer, const Json& object,
                                                 const char* name) const;

 private:
    std::string file_;
    nlohmann::ordered_json root_;
    std::map<std::string, std::size_t> lines_;
};

}  // namespace ostrel::tool

#endif
