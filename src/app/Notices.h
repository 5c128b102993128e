// Notices.h - what the last part of the status bar tells: words that need no answer, one of each kind.
#pragma once

#include <string>

namespace app {

enum class Notice : int { Pointer, Remark, Backup, Recovered, Hint };
constexpr int kNotices = 5;

// Replaces the text of that kind; "" takes it away.
void SetNotice(Notice notice, const std::string& text);

// A remark that is true of the open airport as it is now, and the end of it once that was edited or is another one:
// after every change of what the map shows.
void RemarkOnAirport(const std::string& text);
void DropOldRemark();

// All of them on one line. The hint stands there only when there is nothing else to tell.
std::string NoticeText();

}  // namespace app
