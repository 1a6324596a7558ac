// A JSON document with the line number of each part, for messages about hand-written files.
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
    // The constructor reads the file. It throws std::invalid_argument with a message for the user.
    explicit Document(std::string file);

    [[nodiscard]] const std::string& file() const { return file_; }
    [[nodiscard]] const nlohmann::ordered_json& root() const { return root_; }

    // line_of returns the line of the part that a JSON pointer (RFC 6901) identifies.
    [[nodiscard]] std::size_t line_of(const std::string& pointer) const;

    // complain throws std::invalid_argument with the message "FILE:LINE: POINTER: PROBLEM".
    [[noreturn]] void complain(const std::string& pointer, std::string_view problem) const;

    // These functions read the part at the pointer, and complain if it is not of the expected kind.
    using Json = nlohmann::ordered_json;
    void require_members(const std::string& pointer, const Json& object,
                         std::initializer_list<std::string_view> names) const;

    // text returns a string member, or an empty string if the member is missing and not needed.
    [[nodiscard]] std::string text(const std::string& pointer, const Json& object, const char* name,
                                   bool is_needed = false) const;
    [[nodiscard]] std::string text_of(const std::string& pointer, const Json& value) const;

    // array returns a member, or an empty array if it is missing and not needed. texts returns its strings.
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
