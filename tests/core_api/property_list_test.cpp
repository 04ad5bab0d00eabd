#include "core_api/property_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/temporary_folder.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

TEST(PropertyList, KeepsOrderTypesAndEveryText) {
    Vor_PropertyList list;
    ASSERT_TRUE(list.setText("b.key\twith tab", "line\nline\\\r\t\x95"));
    ASSERT_TRUE(list.setDouble("a", 0.1 + 0.2));
    ASSERT_TRUE(list.setInt("count", std::numeric_limits<int>::min()));
    ASSERT_TRUE(list.setBool("on", true));
    ASSERT_TRUE(list.setText("empty", ""));
    ASSERT_TRUE(list.setDouble("a", -1e-300));  // keeps its place
    EXPECT_FALSE(list.setDouble("a", std::nan("")));
    EXPECT_FALSE(list.setText("", "x"));

    const TemporaryFolder folder;
    Vor_String message;
    ASSERT_TRUE(list.save(folder.inside("m.macro"), message)) << message.str();
    Vor_PropertyList read;
    ASSERT_TRUE(read.load(folder.inside("m.macro"), message)) << message.str();
    EXPECT_EQ(read, list);
    EXPECT_EQ(read[1].key.str(), "a");
    EXPECT_EQ(read[1].line, 3);
    EXPECT_EQ(read.getDouble("a"), -1e-300);
    EXPECT_EQ(read.getInt("count"), std::numeric_limits<int>::min());
    EXPECT_EQ(read.getDouble("count"), std::numeric_limits<int>::min());
    EXPECT_EQ(read.getBool("on"), true);
    EXPECT_EQ(read.getText("on"), nullptr);
    EXPECT_EQ(read.getInt("a"), std::nullopt);

    ASSERT_TRUE(read.remove("a"));
    EXPECT_EQ(read.find("on"), 2);
}

TEST(PropertyList, DamageIsRefusedByLineAndChangesNothing) {
    const struct {
        const char* text;
        const char* message;
    } cases[] = {
        {"", "f:1: this is not a property list; check that it is the file meant"},
        {"\x89PNG\r\n\x1A\n", "f:1: this is not a property list; check that it is the file meant"},
        {"properties 2\nend\n",
         "f:1: this version of property lists is not known; use a newer program"},
        {"properties 1\ns\ta\tb\n",
         "f:3: the line \"end\" is missing, the file was cut off; restore it"},
        {"properties 1\ns\ta\tb\nen",
         "f:3: the type is none of s, i, d, b; write the type, a tab, the key, a tab, the value"},
        {"properties 1\r\nend\nx\n", "f:3: text after the end; remove it"},
        {"properties 1\ns\ta\nend\n",
         "f:2: the value is missing; write the type, a tab, the key, a tab, the value"},
        {"properties 1\ns\t\tb\nend\n",
         "f:2: the key is missing; write the type, a tab, the key, a tab, the value"},
        {"properties 1\ns\ta\tC:\\dir\nend\n", "f:2: a backslash stands alone; write it twice"},
        {"properties 1\ns\ta\t1\ni\tA\t1\nd\ta\t1\nend\n",
         "f:4: the key is already on line 2; remove one of them"},
    };
    Vor_PropertyList list;
    list.setText("kept", "yes");
    for (const auto& c : cases) {
        Vor_String message;
        EXPECT_FALSE(list.read(c.text, "f", message)) << c.text;
        EXPECT_EQ(message.str(), c.message);
        EXPECT_EQ(list.length(), 1);
    }
    for (const char* value : {"i\ta\t99999999999", "i\ta\t1.5", "i\ta\t", "d\ta\tinf", "d\ta\t 1",
                              "d\ta\t1\t", "d\ta\t1x", "b\ta\t2", "b\ta\t"}) {
        Vor_String message;
        EXPECT_FALSE(list.read("properties 1\n" + std::string(value) + "\nend\n", "f", message));
        EXPECT_THAT(message.str(), HasSubstr("f:2: the value is not of its type")) << value;
    }
}

TEST(PropertyList, AbsurdSizesAreRefused) {
    Vor_String message;
    Vor_PropertyList list;
    const std::string head = "properties 1\n";
    EXPECT_FALSE(list.read(head + "s\t" + std::string(5000, 'k') + "\tv\nend\n", "f", message));
    EXPECT_EQ(message.str(), "f:2: the key is too long; shorten it");
    EXPECT_FALSE(list.read(head + "s\tk\t" + std::string(2 << 20, 'v') + "\nend\n", "f", message));
    EXPECT_EQ(message.str(), "f:2: the value is too long; shorten it");
    std::string many = head;
    for (int i = 0; i <= Vor_PropertyList::maxProperties; ++i)
        many += "s\t" + std::to_string(i) + "\t\n";
    EXPECT_FALSE(list.read(many + "end\n", "f", message));
    EXPECT_EQ(message.str(), "f:200002: there are more than 200000 properties; split the file");
    const TemporaryFolder folder;
    EXPECT_FALSE(list.load(folder.write("big", many), message, 1000));
    EXPECT_THAT(message.str(), HasSubstr("larger than 1000 bytes"));
}

// Every cut and every changed byte of a good file: refused with a line, or read as something that
// comes back the same from its own text.
TEST(PropertyList, SurvivesCutsAndChangedBytes) {
    const std::string good =
        "properties 1\ns\tname\tA\\tB\ni\tcount\t-3\nd\twidth\t1.5e3\nb\ton\t1\nend\n";
    for (size_t length = 0; length + 1 < good.size(); ++length) {
        Vor_PropertyList list;
        Vor_String message;
        EXPECT_FALSE(list.read(good.substr(0, length), "f", message)) << "cut at " << length;
        EXPECT_TRUE(message.beginsWith("f:")) << "cut at " << length;
    }
    for (size_t at = 0; at < good.size(); ++at) {
        for (const char c : {'\0', '\t', '\n', '\\', '9', 'x', '\xFF'}) {
            std::string changed = good;
            changed[at] = c;
            Vor_PropertyList list, again;
            Vor_String message;
            if (!list.read(changed, "f", message)) {
                EXPECT_THAT(message.str(), testing::MatchesRegex("f:[0-9]+: .+; .+")) << at;
                continue;
            }
            ASSERT_TRUE(again.read(list.write(), "again", message)) << message.str();
            EXPECT_EQ(again, list) << "byte " << at << " made " << static_cast<int>(c);
        }
    }
}

}  // namespace
