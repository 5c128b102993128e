// Notices.h - what the last part of the status bar tells: words that need no answer, one of each kind.
#pragma once

#include <string>

namespace app {

enum class Notice : int { Pointer, Remark, Backup, Recovered };
constexpr int kNotices = 4;

// Replaces the text of that kind; "" takes it away.
void SetNotice(Notice notice, const std::string& text);

// All of them on one line.
std::string NoticeText();

}  // namespace app
