// CsvReader.h - rows of a comma separated table, read without ever failing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sample {

// Reads the next row that is not blank into *fields and takes it off *rest. False at the end of the text.
// A quoted field may hold commas, line ends and doubled quotes; a quote left open ends with the text.
bool NextCsvRow(std::string_view* rest, std::vector<std::string>* fields);

// A table being read row by row; its columns are found by the names in the first line.
struct CsvTable {
    std::string_view rest;
    std::vector<std::string> columns;  // names, as written
    std::vector<std::string> row;      // the row that NextRow read
};

CsvTable OpenCsv(std::string_view text);  // skips a byte order mark; `text` must outlive the table
bool NextRow(CsvTable* table);
int ColumnOf(const CsvTable& table, std::string_view name);  // -1 when there is none

// The field of the row, trimmed of blanks. Empty when the row is shorter or the column is -1.
std::string_view Field(const CsvTable& table, int column);

// The whole field as a finite number; false, with *value untouched, when it is empty or anything else.
bool NumberIn(std::string_view field, double* value);

}  // namespace sample
