// SimLinkHost.h - what the link, and who wants to end the program, ask of the window.
//
// SimLinkWin.cpp serves the program, tests/fakes/FakeSimLinkHost.cpp the tests.
#pragma once

namespace app {

// Whether the airport may change under the windows that are open: no dialog is at work on it.
bool IsMapInFront();

// The status bar shows its read-outs again.
void ShowReadOuts();

}  // namespace app
