// FakeSimLinkHost.h - the window as the link's tests see it.
#pragma once

struct FakeSimLinkHost {
    bool mapInFront = true;
    int readOuts = 0;  // how often they were shown
};

extern FakeSimLinkHost fakeSimLinkHost;
