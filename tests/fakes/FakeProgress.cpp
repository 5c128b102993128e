// FakeProgress.cpp - see FakeProgress.h.
#include "FakeProgress.h"

#include "bgl/LibraryHost.h"

FakeProgress fakeProgress;

namespace bgl {

void ShowProgress(const std::string& text) {
    ++fakeProgress.shown;
    fakeProgress.texts.push_back(text);
}

void SetProgress(int percent) {
    fakeProgress.positions.push_back(percent);
    if (fakeProgress.onPosition) fakeProgress.onPosition(percent);
}

void CloseProgress() { ++fakeProgress.closed; }

void FinishProgress() {
    SetProgress(100);
    CloseProgress();
}

}  // namespace bgl
