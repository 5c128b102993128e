// Notices.cpp - see Notices.h.
#include "app/Notices.h"

#include "app/AppHost.h"
#include "app/AppState.h"

namespace app {

void SetNotice(Notice notice, const std::string& text) {
    state.notices[static_cast<int>(notice)] = text;
    ShowNoticeText(NoticeText());
}

std::string NoticeText() {
    constexpr int kHint = static_cast<int>(Notice::Hint);
    std::string all;
    for (int i = 0; i < kHint; ++i) {
        const std::string& text = state.notices[i];
        if (!text.empty() && !all.empty()) all += "   ";
        all += text;
    }
    return all.empty() ? state.notices[kHint] : all;
}

}  // namespace app
