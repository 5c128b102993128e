// MapPictures.cpp - see MapPictures.h.
#include "app/MapPictures.h"

#include <algorithm>
#include <cstdio>

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "model/ObjectList.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace app {

namespace {

constexpr const char* kPng = ".png";
constexpr const char* kMetafile = ".emf";

// A metafile has no pixels of its own; its points lie on a raster as fine as that.
constexpr int kMetafileTimes = map::kMostPictureTimes;

PictureKind PngKind(int times) {
    const map::PictureSize size = map::PictureSizeOf(times);
    char label[64];
    std::snprintf(label, sizeof label, "PNG picture, %dx (%d x %d pixels)", times, static_cast<int>(size.width),
                  static_cast<int>(size.height));
    return { PictureFormat::Png, times, label, kPng };
}

bool MayReplace(const std::string& path) {
    const std::string text = path + " already exists.\nDo you want to replace it?";
    return platform::ShowMessage(text, platform::Buttons::YesNo, platform::Icon::Exclamation) == platform::Answer::Yes;
}

bool WritePicture(const PictureTarget& target) {
    std::vector<uint8_t> bytes;
    ShowWaitCursor(true);
    const bool made = DrawMapPicture(target.format, map::PictureSizeOf(target.times), &bytes);
    const bool written = made && platform::WriteFileWhole(target.path, bytes);
    ShowWaitCursor(false);
    if (!made) return platform::ShowError("There is not enough memory for a picture of this size.");
    return written || platform::ShowError("Unable to create picture file");
}

PictureQuestion NewQuestion() {
    PictureQuestion question;
    question.folder = state.pictureFolder;
    question.name = model::state.icao;
    question.kinds = PictureKinds();
    question.kind = std::min(state.pictureKind, question.kinds.size() - 1);
    return question;
}

}  // namespace

std::vector<PictureKind> PictureKinds() {
    std::vector<PictureKind> kinds;
    for (int times = 1; times <= map::kMostPictureTimes; ++times) kinds.push_back(PngKind(times));
    kinds.push_back({ PictureFormat::Metafile, kMetafileTimes, "Enhanced metafile", kMetafile });
    return kinds;
}

PictureTarget TargetOf(const PictureQuestion& question, const PictureAnswer& answer) {
    const PictureKind& kind = question.kinds[std::min(answer.kind, question.kinds.size() - 1)];
    PictureTarget target = { answer.path, kind.format, kind.times, false };
    if (platform::EndsWithNoCase(answer.path, kind.extension)) return target;
    const auto other = std::find_if(question.kinds.begin(), question.kinds.end(), [&](const PictureKind& k) {
        return platform::EndsWithNoCase(answer.path, k.extension);
    });
    if (other == question.kinds.end()) return { answer.path + kind.extension, kind.format, kind.times, true };
    target.format = other->format;
    target.times = other->times;
    return target;
}

bool SaveMapPicture() {
    if (!model::state.loaded) return false;
    const PictureQuestion question = NewQuestion();
    PictureAnswer answer;
    if (!AskPicturePath(question, &answer)) return false;
    const PictureTarget target = TargetOf(question, answer);
    if (target.renamed && platform::FileExists(target.path) && !MayReplace(target.path)) return false;
    state.pictureFolder = std::string(FolderOf(target.path)) + "\\";  // "D:" alone is no folder
    state.pictureKind = answer.kind;
    return WritePicture(target);
}

}  // namespace app
