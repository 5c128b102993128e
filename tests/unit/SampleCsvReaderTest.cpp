#include <gtest/gtest.h>

#include "sample/CsvReader.h"

namespace {

using sample::CsvTable;
using Fields = std::vector<std::string>;

std::vector<Fields> AllRows(std::string_view text) {
    std::vector<Fields> rows;
    for (Fields row; sample::NextCsvRow(&text, &row);) rows.push_back(row);
    return rows;
}

}  // namespace

TEST(SampleCsvReader, RowsEndInEitherLineEndAndTheLastNeedsNone) {
    EXPECT_EQ(AllRows("a,b\r\nc,d\ne,f"), (std::vector<Fields>{ { "a", "b" }, { "c", "d" }, { "e", "f" } }));
}

TEST(SampleCsvReader, EmptyTextAndBlankLinesHoldNoRows) {
    EXPECT_TRUE(AllRows("").empty());
    EXPECT_TRUE(AllRows("\r\n\n\r\n").empty());
    EXPECT_EQ(AllRows("\n\na\n\nb\n").size(), 2u);
}

TEST(SampleCsvReader, EmptyFieldsAreKept) {
    EXPECT_EQ(AllRows(",,\n"), (std::vector<Fields>{ { "", "", "" } }));
    EXPECT_EQ(AllRows("a,"), (std::vector<Fields>{ { "a", "" } }));
}

TEST(SampleCsvReader, QuotedFieldsHoldCommasLineEndsAndDoubledQuotes) {
    EXPECT_EQ(AllRows("1,\"a, \"\"b\"\"\nc\",2\n"), (std::vector<Fields>{ { "1", "a, \"b\"\nc", "2" } }));
}

TEST(SampleCsvReader, QuoteLeftOpenEndsWithTheText) {
    EXPECT_EQ(AllRows("a,\"b,c\nd"), (std::vector<Fields>{ { "a", "b,c\nd" } }));
    EXPECT_EQ(AllRows("\""), (std::vector<Fields>{ { "" } }));
}

TEST(SampleCsvReader, QuoteInsideAFieldIsAnOrdinaryCharacter) {
    EXPECT_EQ(AllRows("5\" wide,\"x\"y"), (std::vector<Fields>{ { "5\" wide", "xy" } }));
}

TEST(SampleCsvReader, ColumnsAreFoundByNameBehindAByteOrderMark) {
    CsvTable table = sample::OpenCsv("\xEF\xBB\xBFident, name\r\nKSEA,  Seattle \r\nCYYJ\r\n");
    const int ident = sample::ColumnOf(table, "ident"), name = sample::ColumnOf(table, "name");
    EXPECT_EQ(ident, 0);
    EXPECT_EQ(name, 1);
    EXPECT_EQ(sample::ColumnOf(table, "city"), -1);
    ASSERT_TRUE(sample::NextRow(&table));
    EXPECT_EQ(sample::Field(table, name), "Seattle");
    ASSERT_TRUE(sample::NextRow(&table));
    EXPECT_EQ(sample::Field(table, ident), "CYYJ");
    EXPECT_EQ(sample::Field(table, name), "") << "the row is shorter than the head";
    EXPECT_EQ(sample::Field(table, -1), "");
    EXPECT_FALSE(sample::NextRow(&table));
}

TEST(SampleCsvReader, NumbersAreWholeFieldsOrNothing) {
    double value = 7;
    EXPECT_TRUE(sample::NumberIn("-122.5", &value));
    EXPECT_EQ(value, -122.5);
    for (const char* wrong : { "", "12x", "x12", "nan", "inf", "1e999", "1,5", " 3" }) {
        value = 7;
        EXPECT_FALSE(sample::NumberIn(wrong, &value)) << wrong;
        EXPECT_EQ(value, 7) << wrong;
    }
}
