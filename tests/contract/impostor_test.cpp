// A host that defines functions with the library's names. The library must still call its own functions.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <ostrel/check.h>

#include <string>

namespace {

int impostor_calls = 0;

int impostor_answer()
{
    ++impostor_calls;
    return 12345;
}

}  // namespace

// The host's functions, each of which returns a value that no library function returns.
int ValidateString(int /*min_len*/, int /*max_len*/, const char* /*charset*/, const char* /*value*/)
{
    return impostor_answer();
}
int ValidateNum(int /*min*/, int /*max*/, const char* /*charset*/, const char* /*value*/)
{
    return impostor_answer();
}
int countChar(const char* /*value*/, int /*ch*/) { return impostor_answer(); }
int TcmValidateIPAddress(const char* /*value*/) { return impostor_answer(); }
int TcmValidateMACaddress(const char* /*value*/) { return impostor_answer(); }
int isValidOrdinaryMACAddress(const char* /*value*/) { return impostor_answer(); }
int TcmValidateProvisioningCode(const char* /*value*/) { return impostor_answer(); }
int TcmValidatePort(const char* /*value*/) { return impostor_answer(); }
int PARAM_check_string_len(const char* /*value_p*/, unsigned /*min_len*/, unsigned /*max_len*/)
{
    return impostor_answer();
}
int PARAM_check_hexa_string(const char* /*value_p*/) { return impostor_answer(); }
extern "C" __attribute__((visibility("default"))) int isEmail(const char* /*value*/)
{
    return impostor_answer();
}
extern "C" __attribute__((visibility("default"))) int ValidateURL(const char* /*value*/)
{
    return impostor_answer();
}
const unsigned char ostrel_ctype[256] = {};

namespace ostrel::tests {

namespace {

class Impostor : public testing::Test {
 protected:
    void SetUp() override { impostor_calls = 0; }
    void TearDown() override { EXPECT_EQ(0, impostor_calls) << "the library called the host's function"; }
};

// Without this test, the ones below would prove nothing.
TEST(ImpostorProof, TheHostsNamesWinOutsideTheLibrary)
{
    EXPECT_EQ(reinterpret_cast<void*>(&ValidateString), dlsym(RTLD_DEFAULT, "ValidateString"));
    EXPECT_EQ(reinterpret_cast<void*>(&isEmail), dlsym(RTLD_DEFAULT, "isEmail"));
    EXPECT_EQ(static_cast<const void*>(ostrel_ctype), dlsym(RTLD_DEFAULT, "ostrel_ctype"));
    EXPECT_EQ(12345, TcmValidateIPAddress("1.2.3.4"));
}

TEST_F(Impostor, AddressChecksAnswerAsEver)
{
    EXPECT_EQ(0, PARAM_check_ip_addr("1.2.3.4"));
    EXPECT_EQ(402, PARAM_check_ip_addr("1.2.3.256"));
    EXPECT_EQ(0, PARAM_check_MACAddress("00:1a:2B:3c:4D:5e"));
    EXPECT_EQ(402, PARAM_check_MACAddress("00:1a:2B:3c:4D:5g"));
    EXPECT_EQ(0, PARAM_check_Ordinary_MACAddress("00:1a:2B:3c:4D:5e"));
    EXPECT_EQ(402, PARAM_check_Ordinary_MACAddress("01:1a:2B:3c:4D:5e"));
}

TEST_F(Impostor, StringAndAccountChecksAnswerAsEver)
{
    EXPECT_EQ(0, PARAM_check_number("123", 1, 3));
    EXPECT_EQ(802, PARAM_check_number("1234", 1, 3));
    EXPECT_EQ(803, PARAM_check_number("12a", 1, 3));
    EXPECT_EQ(0, PARAM_check_num_range("5", 1, 9));
    EXPECT_EQ(601, PARAM_check_num_range("10", 1, 9));
    EXPECT_EQ(803, PARAM_check_password("a-b", 1, 9));
    EXPECT_EQ(0, PARAM_check_provisioning_code("000.004.001.999"));
    EXPECT_EQ(402, PARAM_check_provisioning_code("000.004.001.99"));
    int type = 0;
    EXPECT_EQ(0, TcmValidatePPPUsername("1234567890123#4567@example.net", &type));
    EXPECT_EQ(2, type);
    EXPECT_EQ(0, TcmValidateVoIPRegistrarPort("80"));
    EXPECT_EQ(-1, TcmValidateVoIPRegistrarPort("0"));
}

TEST_F(Impostor, ClassTestsAnswerAsEver)
{
    EXPECT_EQ(601, PARAM_check_dl_test_bufsize("x"));
    EXPECT_EQ(0, PARAM_check_dl_test_bufsize("1"));
    EXPECT_EQ(402, PARAM_check_ui2_value("x"));
}

}  // namespace

}  // namespace ostrel::tests
