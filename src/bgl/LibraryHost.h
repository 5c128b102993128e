// LibraryHost.h - what collecting airports asks of the program around it. The program shows its progress box,
// tests fake it.
#pragma once

#include <string>

namespace bgl {

// The box appears with that text at position 0, or shows the text from now on.
void ShowProgress(const std::string& text);

void SetProgress(int percent);  // 0 to 100

void CloseProgress();

// Position 100 for that time, so that a full bar is seen, then as CloseProgress.
constexpr int kFullBarMilliseconds = 20;
void FinishProgress();

}  // namespace bgl
