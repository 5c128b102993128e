#include "cli/Json.h"

#include <gtest/gtest.h>

#include <charconv>
#include <limits>

namespace {

using namespace cli;

std::string Text(std::string_view utf8) {
    JsonWriter json;
    WriteText(&json, utf8);
    return json.text;
}
std::string Float(float value) {
    JsonWriter json;
    WriteFloat(&json, value);
    return json.text;
}
std::string Fixed(double value, int decimals) {
    JsonWriter json;
    WriteFixed(&json, value, decimals);
    return json.text;
}

TEST(Json, ContainersAreSeparatedByCommas) {
    JsonWriter json;
    OpenObject(&json);
    Key(&json, "a");
    WriteInteger(&json, 1);
    Key(&json, "b");
    OpenArray(&json);
    WriteBoolean(&json, true);
    WriteBoolean(&json, false);
    WriteNull(&json);
    OpenObject(&json);
    CloseObject(&json);
    OpenArray(&json);
    CloseArray(&json);
    CloseArray(&json);
    Key(&json, "c");
    WriteText(&json, "x");
    CloseObject(&json);
    EXPECT_EQ(json.text, R"({"a": 1, "b": [true, false, null, {}, []], "c": "x"})");
}

TEST(Json, LineBreaksStandBetweenValues) {
    JsonWriter json;
    OpenArray(&json);
    for (int i = 0; i < 3; ++i) {
        LineBreak(&json);
        WriteInteger(&json, i);
    }
    CloseArray(&json);
    EXPECT_EQ(json.text, "[\n0,\n1,\n2]");
}

TEST(Json, TextsAreEscaped) {
    EXPECT_EQ(Text("plain"), "\"plain\"");
    EXPECT_EQ(Text(""), "\"\"");
    EXPECT_EQ(Text("a\"b\\c/d"), R"("a\"b\\c/d")");
    EXPECT_EQ(Text("\n\r\t"), R"("\n\r\t")");
    EXPECT_EQ(Text(std::string_view("\0\x01\x1F\x7F", 4)), "\"\\u0000\\u0001\\u001f\x7F\"");
    EXPECT_EQ(Text("Z\xC3\xBCrich"), "\"Z\xC3\xBCrich\"");
}

TEST(Json, KeysAreEscapedToo) {
    JsonWriter json;
    OpenObject(&json);
    Key(&json, "a\"b");
    WriteNull(&json);
    CloseObject(&json);
    EXPECT_EQ(json.text, R"({"a\"b": null})");
}

TEST(Json, IntegersOfEverySize) {
    JsonWriter json;
    OpenArray(&json);
    WriteInteger(&json, -5);
    WriteInteger(&json, std::numeric_limits<int64_t>::min());
    WriteInteger(&json, UINT32_MAX);
    CloseArray(&json);
    EXPECT_EQ(json.text, "[-5, -9223372036854775808, 4294967295]");
}

TEST(Json, FloatsAreTheShortestTextThatReadsBackEqual) {
    EXPECT_EQ(Float(0.1f), "0.1");
    EXPECT_EQ(Float(23), "23");
    EXPECT_EQ(Float(-2.5f), "-2.5");
    for (const float value : { 1.0f / 3, 359.99f, 1e-40f, 3.4e38f, 60.96f, -0.0f }) {
        const std::string text = Float(value);
        float back = 0;
        std::from_chars(text.data(), text.data() + text.size(), back);
        EXPECT_EQ(back, value) << text;
    }
}

TEST(Json, NumbersThatAreNotFiniteAreNull) {
    EXPECT_EQ(Float(std::numeric_limits<float>::infinity()), "null");
    EXPECT_EQ(Float(-std::numeric_limits<float>::infinity()), "null");
    EXPECT_EQ(Float(std::numeric_limits<float>::quiet_NaN()), "null");
    EXPECT_EQ(Fixed(std::numeric_limits<double>::quiet_NaN(), 3), "null");
    EXPECT_EQ(Fixed(std::numeric_limits<double>::infinity(), 3), "null");
}

TEST(Json, FixedNumbersHaveTheirDecimals) {
    EXPECT_EQ(Fixed(47.449, 8), "47.44900000");
    EXPECT_EQ(Fixed(-0.5, 3), "-0.500");
    EXPECT_EQ(Fixed(0, 0), "0");
    EXPECT_EQ(Fixed(std::numeric_limits<double>::max(), 8).size(), 309u + 9);
}

}  // namespace
