// Tests calls with buffers of exactly the described size, each followed by an unreadable page.

#include <gtest/gtest.h>
#include <ostrel/lan_check.h>
#include <ostrel/mgtserver_check.h>

#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <string>

#include "calling/caller.h"
#include "rules/evaluate.h"
#include "rules/rules.h"

namespace ostrel::tests {

namespace {

constexpr char kOther = '\xAA';

// died returns whether the status reports a memory fault, including one that a sanitizer detected.
bool died(int status) { return WIFSIGNALED(status) ? WTERMSIG(status) != SIGABRT : WEXITSTATUS(status) != 0; }

// Buffer is memory that ends at an unreadable page.
class Buffer {
 public:
    explicit Buffer(std::size_t size) : size_(size), begin_(memory_.place(size, calling::Edge::kEnd))
    {
        std::memset(begin_, kOther, size);
    }

    void hold(const std::string& text)
    {
        std::memset(begin_, 0, size_);
        std::memcpy(begin_, text.data(), std::min(text.size(), size_));
    }

    char* begin() { return begin_; }
    [[nodiscard]] std::string bytes() const { return {begin_, size_}; }
    [[nodiscard]] std::string text() const { return {begin_, strnlen(begin_, size_)}; }

 private:
    calling::GuardedMemory memory_;
    std::size_t size_;
    char* begin_;
};

std::size_t room_of(const char* name, std::size_t argument, const std::vector<rules::Value>& values)
{
    return rules::room(*rules::find(name), argument, values).value_or(0);
}

int add(const std::string& address, const std::string& list, Buffer& buffer)
{
    buffer.hold(list);
    return LAN_check_add_allowedMACAddress(address.c_str(), buffer.begin());
}

std::size_t list_room(const std::string& address, const std::string& list)
{
    return room_of("LAN_check_add_allowedMACAddress", 1, {address, list});
}

std::size_t offset_room(const std::string& value)
{
    return room_of("HNAPCORE_check_timezone", 1, {value, std::string()});
}

TEST(AllowedListTest, HasRoomForWhatIsAdded)
{
    for (std::size_t length = 17; length <= 143; length += 18) {
        const std::string address(length, 'a');
        for (std::size_t listed = 1; listed + length <= 159; ++listed) {
            const std::string list(listed, 'l');
            Buffer buffer(list_room(address, list));
            EXPECT_EQ(0, add(address, list, buffer));
            EXPECT_EQ(list + "," + address, buffer.text());
        }
    }
}

TEST(AllowedListTest, HasRoomForWhateverAnEmptyOneTakes)
{
    for (std::size_t length = 0; length <= 400; ++length) {
        const std::string address(length, 'a');
        Buffer buffer(list_room(address, ""));
        EXPECT_EQ(0, add(address, "", buffer));
        EXPECT_EQ(address, buffer.text());
    }
}

TEST(AllowedListTest, NeedsItsLastByte)
{
    const std::string address(17, 'a');
    const std::string list(142, 'l');
    EXPECT_EQ(161U, list_room(address, list));
    Buffer shorter(160);
    EXPECT_EXIT(add(address, list, shorter), died, "");
}

TEST(AllowedListTest, NeedsItsLastByteForTheTerminatorThatAnEmptyOneHas)
{
    const std::string address(200, 'a');
    EXPECT_EQ(201U, list_room(address, ""));
    Buffer without_terminator(200);
    EXPECT_EQ(0, add(address, "", without_terminator));
    EXPECT_EQ(address, without_terminator.bytes());
    Buffer shorter(199);
    EXPECT_EXIT(add(address, "", shorter), died, "");
}

TEST(OffsetTest, HasRoomForWhatFollows)
{
    for (std::size_t length = 0; length <= 40; ++length) {
        const std::string offset(length, 'o');
        const std::string value = "UTC" + offset;
        Buffer buffer(offset_room(value));
        EXPECT_EQ(0, HNAPCORE_check_timezone(value.c_str(), buffer.begin()));
        EXPECT_EQ(offset.empty() ? "+00:00" : offset, buffer.text());
    }
}

TEST(OffsetTest, NeedsItsLastByte)
{
    for (const char* value : {"UTC", "UTC+00:00", "utc+00:00:00"}) {
        Buffer shorter(offset_room(value) - 1);
        EXPECT_EXIT(HNAPCORE_check_timezone(value, shorter.begin()), died, "") << value;
    }
}

TEST(RoomTest, OfATimeZoneIsForWhatIsGivenAndForWhatIsFilledIn)
{
    const char* const kCheck = "Time_validate_tzone_and_tzone_name";
    EXPECT_EQ(7U, room_of(kCheck, 0, {"", "Lima"}));
    EXPECT_EQ(11U, room_of(kCheck, 0, {"1234567890", "Lima"}));
    EXPECT_EQ(55U, room_of(kCheck, 1, {"-05:00", ""}));
    EXPECT_EQ(61U, room_of(kCheck, 1, {"-05:00", std::string(60, 'a')}));
}

TEST(RoomTest, IsNotSaidWhereItDependsOnNull)
{
    const rules::Check& check = *rules::find("LAN_check_add_allowedMACAddress");
    EXPECT_EQ(std::nullopt, rules::room(check, 1, std::vector<rules::Value>{nullptr, "list"}));
    EXPECT_EQ(std::nullopt, rules::room(check, 0, std::vector<rules::Value>{"address", "list"}));
}

}  // namespace

}  // namespace ostrel::tests
