// Edits of the LAN's lists.
#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

// List is a list of one server, or of a first one and whatever stands behind the first comma.
struct List {
    std::string first;
    std::optional<std::string> second;
};

List list_of(const std::string& value)
{
    const std::size_t comma = value.find(',');
    if (comma == std::string::npos) return {value, std::nullopt};
    return {value.substr(0, comma), value.substr(comma + 1)};
}

// add_to_list judges nothing where the list is empty.
Answer add_to_list(const std::string& address, std::string& list)
{
    const std::string name = "LAN_check_add_allowedMACAddress";
    if (list.empty()) {
        list = address;
        return silent(0);
    }
    if (list.find(address) != std::string::npos) {
        return rule::refused(-1, name, "Add existed mac address: " + address + " to " + list + "\n\n");
    }
    if ((address.size() + 1) % 18 != 0) {
        return rule::refused(-1, name, "Add mac address invalid length: " + address + "\n\n");
    }
    const std::size_t sum = address.size() + list.size();
    if (sum >= 160) {
        return rule::refused(
            -1, name, "Add mac address length " + std::to_string(sum) + " will out of buffer size 160\n\n");
    }
    list += "," + address;
    return silent(0);
}

Answer add_allowed_address(Arguments arguments)
{
    Answer answer = silent(-1);
    answer.after = {arguments[1]};
    if (is_null(arguments[0]) || is_null(arguments[1])) return answer;
    std::string list = text(arguments[1]);
    answer = add_to_list(text(arguments[0]), list);
    answer.after = {list};
    return answer;
}

// add_dns_servers tells of every list of two, whatever it thinks of it. A single new server is compared with
// the existing list as a whole.
Answer add_dns_servers(Arguments arguments)
{
    if (is_null(arguments[1]) || text(arguments[1]).empty()) return silent(0);
    if (is_null(arguments[0])) return undefined();
    const List added = list_of(text(arguments[0]));
    const List existing = list_of(text(arguments[1]));
    const std::string name = "LAN_check_add_dns_servers";
    Answer answer;
    if (existing.second) {
        answer = rule::refused(
            0, name, "Existed dns servers: " + *existing.second + " and " + existing.first + "\n\n");
    }
    if (added.second) {
        answer = rule::followed(
            answer,
            rule::refused(0, name, "New dns servers: " + *added.second + " and " + added.first + "\n\n"));
    }
    bool repeated = false;
    if (!added.second) {
        repeated = text(arguments[0]) == text(arguments[1]);
    } else {
        repeated = existing.first == added.first || existing.first == *added.second ||
                   existing.second == added.first || existing.second == *added.second;
    }
    answer.code = repeated ? 701 : 0;
    return answer;
}

// delete_dns_server finds the second server by its text, and in the first place whatever is as long as the
// first server and differs from it.
Answer delete_dns_server(const std::string& server, const std::string& list)
{
    const std::string name = "LAN_check_delete_dns_server";
    if (!rule::is_address(server)) {
        return rule::refused(402, name, "Not a valid IP addr: " + server + "\n\n");
    }
    const List existing = list_of(list);
    if (existing.second == server) return silent(0);
    if (server.size() == existing.first.size() && server != existing.first) return silent(0);
    return rule::refused(702, name,
                         "Can't find the IP addr: " + server + " in existed servers:" + list + "\n\n");
}

}  // namespace

void add_lan_lists(Models& models)
{
    models["LAN_check_add_allowedMACAddress"] = add_allowed_address;
    models["LAN_check_add_dns_servers"] = add_dns_servers;
    models["LAN_check_delete_dns_server"] = on_texts<delete_dns_server>;
}

}  // namespace ostrel::model
