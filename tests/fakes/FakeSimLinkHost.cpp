// FakeSimLinkHost.cpp - see FakeSimLinkHost.h.
#include "FakeSimLinkHost.h"

#include "app/SimLinkHost.h"

FakeSimLinkHost fakeSimLinkHost;

namespace app {

bool IsMapInFront() { return fakeSimLinkHost.mapInFront; }

void ShowReadOuts() { ++fakeSimLinkHost.readOuts; }

}  // namespace app
