// FieldTablesWin.h - the controls of a dialog as tables: which member of its fields each one shows.
//
// `shift` is added to every id: it tells the equal halves of a page apart.
#pragma once

#include <windows.h>

#include <span>
#include <string>

#include "platform/DialogWin.h"

namespace dialogs {

template <class Fields>
struct TextControl {
    std::string Fields::*text;
    int control;
};

template <class Fields>
struct BoxControl {
    bool Fields::*box;
    int control;
};

template <class Fields>
struct ChoiceControl {
    int Fields::*choice;
    int control;
};

template <class Fields>
struct FieldTable {
    std::span<const TextControl<Fields>> texts;
    std::span<const BoxControl<Fields>> boxes;
    std::span<const ChoiceControl<Fields>> choices;
};

template <class Fields>
void ShowFields(HWND dialog, const FieldTable<Fields>& table, const Fields& fields, int shift = 0) {
    for (const auto& row : table.texts) platform::SetFieldText(dialog, row.control + shift, fields.*row.text);
    for (const auto& row : table.boxes) platform::CheckField(dialog, row.control + shift, fields.*row.box);
    for (const auto& row : table.choices) platform::SetChoice(dialog, row.control + shift, fields.*row.choice);
}

template <class Fields>
void ReadFields(HWND dialog, const FieldTable<Fields>& table, Fields* fields, int shift = 0) {
    for (const auto& row : table.texts) fields->*row.text = platform::FieldText(dialog, row.control + shift);
    for (const auto& row : table.boxes) fields->*row.box = platform::IsFieldChecked(dialog, row.control + shift);
    for (const auto& row : table.choices) fields->*row.choice = platform::ChoiceOf(dialog, row.control + shift);
}

}  // namespace dialogs
