// CsvReader.cpp - see CsvReader.h.
#include "sample/CsvReader.h"

#include <charconv>
#include <cmath>

#include "platform/Text.h"

namespace sample {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view kBlanks = " \t\r";

// Reads a quoted field from behind its opening quote to behind its closing one.
size_t ReadQuoted(std::string_view text, size_t at, std::string* field) {
    while (at < text.size()) {
        if (text[at] != '"') {
            field->push_back(text[at++]);
        } else if (at + 1 < text.size() && text[at + 1] == '"') {
            field->push_back('"');
            at += 2;
        } else {
            return at + 1;
        }
    }
    return at;
}

}  // namespace

bool NextCsvRow(std::string_view* rest, std::vector<std::string>* fields) {
    const std::string_view text = *rest;
    size_t at = 0;
    while (at < text.size() && (text[at] == '\n' || text[at] == '\r')) ++at;  // blank lines
    if (at == text.size()) {
        *rest = {};
        return false;
    }
    fields->assign(1, {});
    for (bool fieldStart = true; at < text.size() && text[at] != '\n';) {
        const char c = text[at++];
        if (c == '"' && fieldStart) {
            at = ReadQuoted(text, at, &fields->back());
        } else if (c == ',') {
            fields->emplace_back();
        } else if (c != '\r' || (at < text.size() && text[at] != '\n')) {
            fields->back().push_back(c);
        }
        fieldStart = c == ',';
    }
    *rest = text.substr(at < text.size() ? at + 1 : at);
    return true;
}

CsvTable OpenCsv(std::string_view text) {
    CsvTable table;
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    table.rest = text;
    NextCsvRow(&table.rest, &table.columns);
    return table;
}

bool NextRow(CsvTable* table) { return NextCsvRow(&table->rest, &table->row); }

int ColumnOf(const CsvTable& table, std::string_view name) {
    for (size_t i = 0; i < table.columns.size(); ++i) {
        if (platform::Trimmed(table.columns[i], kBlanks) == name) return static_cast<int>(i);
    }
    return -1;
}

std::string_view Field(const CsvTable& table, int column) {
    if (column < 0 || static_cast<size_t>(column) >= table.row.size()) return {};
    return platform::Trimmed(table.row[static_cast<size_t>(column)], kBlanks);
}

bool NumberIn(std::string_view field, double* value) {
    double number = 0;
    const auto [end, fault] = std::from_chars(field.data(), field.data() + field.size(), number);
    if (fault != std::errc{} || end != field.data() + field.size() || !std::isfinite(number)) return false;
    *value = number;
    return true;
}

}  // namespace sample
