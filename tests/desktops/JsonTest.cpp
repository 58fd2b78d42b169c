// SPDX-License-Identifier: MIT
#include "platform/desktops/Json.h"

#include <gtest/gtest.h>

namespace {

Json parsed(std::string_view text) {
    auto json = Json::parse(text);
    EXPECT_TRUE(json) << text;
    return json ? std::move(*json) : Json();
}

TEST(JsonTest, readsAnAnswerAsCompositorsWriteIt) {
    const Json json =
        parsed(R"( { "name": "a\tb\/", "id": -12.5e1, "nodes": [ { "focused": true }, null, [] ] } )");
    EXPECT_EQ(json["name"].text(), "a\tb/");
    EXPECT_EQ(json["id"].number(), -125);
    ASSERT_EQ(json["nodes"].items().size(), 3U);
    EXPECT_TRUE(json["nodes"].items()[0]["focused"].isTrue());
    EXPECT_TRUE(json["nodes"].items()[1].isNull());
}

TEST(JsonTest, escapesAreCharacters) { EXPECT_EQ(parsed(R"("\u00e9\u65e5\uD83D\uDE00")").text(), "é日😀"); }

TEST(JsonTest, whatIsNotThereIsEmpty) {
    const Json json = parsed("{}");
    EXPECT_TRUE(json["name"].isNull());
    EXPECT_EQ(json["name"]["deeper"].text(), "");
    EXPECT_EQ(json["name"].items().size(), 0U);
    EXPECT_EQ(json.number(), 0);
    EXPECT_FALSE(json.isTrue());
}

class BrokenJsonTest : public testing::TestWithParam<const char*> {};

TEST_P(BrokenJsonTest, isRefused) { EXPECT_FALSE(Json::parse(GetParam())); }

INSTANTIATE_TEST_SUITE_P(Texts, BrokenJsonTest,
                         testing::Values("", "{", "[1,]", "{\"a\" 1}", "{\"a\":}", "\"open", "\"\\x\"",
                                         "\"\\ud800\"", "\"\\udc00\"", "\"\\u12\"", "nul", "1 2", "{1:2}"));

TEST(JsonTest, nestingThatNoAnswerHasIsRefused) {
    constexpr std::size_t deep = 100'000;
    EXPECT_FALSE(Json::parse(std::string(deep, '[')));
    EXPECT_FALSE(Json::parse(std::string(deep, '[') + std::string(deep, ']')));
}

}  // namespace
