// Notices.cpp - see Notices.h.
#include "app/Notices.h"

#include "app/AppHost.h"
#include "app/AppState.h"
#include "model/ObjectList.h"

namespace app {

void SetNotice(Notice notice, const std::string& text) {
    if (notice == Notice::Remark) state.remarkMark.reset();
    state.notices[static_cast<int>(notice)] = text;
    ShowNoticeText(NoticeText());
}

void RemarkOnAirport(const std::string& text) {
    SetNotice(Notice::Remark, text);
    state.remarkMark = model::state.editMark;
}

void DropOldRemark() {
    if (state.remarkMark && state.remarkMark != model::state.editMark) SetNotice(Notice::Remark, "");
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
