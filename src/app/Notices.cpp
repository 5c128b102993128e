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
    std::string all;
    for (const std::string& text : state.notices) {
        if (!text.empty() && !all.empty()) all += "   ";
        all += text;
    }
    return all;
}

}  // namespace app
