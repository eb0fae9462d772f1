#include "mainwin/bindingtables.h"

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

TEST(BindingTest, ProxyAddressesComeBack) {
    const struct {
        const char* address;
        ProxyParts parts;
    } rows[] = {{"10.0.0.1", {"10", "0", "0", "1"}},
                {"proxy.example", {"proxy", "example", "", ""}},
                {"1.2.3.4.5", {"1", "2", "3", "4.5"}},
                {".", {"", "", "", ""}},
                {"...", {"", "", "", ""}}};
    for (const auto& row : rows) {
        EXPECT_EQ(SplitProxyAddress(row.address), row.parts) << row.address;
        EXPECT_EQ(JoinProxyAddress(row.parts, row.address), row.address);
    }
    EXPECT_EQ(JoinProxyAddress({"10", "0", "0", "2"}, "10.0.0.1"), "10.0.0.2");
    EXPECT_EQ(JoinProxyAddress({"", "", "", ""}, ""), "...");
    EXPECT_EQ(JoinProxyAddress({"", "", "", ""}, "a.b"), "...");
}

TEST(BindingTest, AValueThatNoItemStandsForIsKept) {
    EXPECT_EQ(IndexOf(""), 0);
    EXPECT_EQ(IndexOf("99999999999"), -1);
    EXPECT_EQ(SelectedValue(-1, "17"), "17");
    EXPECT_EQ(SelectedValue(0, "17"), "0");
}

}  // namespace
}  // namespace quirn
