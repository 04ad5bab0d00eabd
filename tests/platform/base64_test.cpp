#include "platform/base64.h"

#include <gtest/gtest.h>

namespace {

TEST(Base64, IsThatOfTheStandard) {
    // RFC 4648, section 10, and bytes beyond letters.
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {std::string("\0\xFF\xFE", 3), "AP/+"},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(toBase64(bytes), text);
        EXPECT_EQ(fromBase64(text), bytes) << text;
    }
    for (const char* bad :
         {"Z", "Zg", "Zg=", "Zg==Zg==", "Zh==", "Zm9=", "====", "=", "Z===", "Zm9v\n"})
        EXPECT_FALSE(fromBase64(bad)) << bad;
}

}  // namespace
