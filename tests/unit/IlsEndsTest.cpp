#include "model/IlsEnds.h"

#include <cmath>

#include "dialogs/Subject.h"
#include "fakes/IlsFixture.h"

namespace {

using namespace model;

class IlsEnds : public IlsFixture {
protected:
    void SetUp() override {
        IlsFixture::SetUp();
        other = build::Runway(9, 0, { 8000, 0 });
        ils = build::Ils("ISNQ", { 0, 1800 });
        Ils(ils).localizer = { 36, 1, 0, 4 };
        Ils(ils).body.region = RegionWordWithAirport(0, As<AirportRecord>(airport).ident);
    }
    SceneryObject *other = nullptr, *ils = nullptr;
};

TEST_F(IlsEnds, AnIlsServesOneEndAtMost) {
    for (SceneryObject* each : { runway, other }) {
        As<RunwayPayload>(each).body.primaryIls = As<RunwayPayload>(each).body.secondaryIls = PackIdent("ISNQ");
    }
    Ils(ils).localizer = { 1, 0, 0, 4 };  // names none of them
    int served = 0;
    for (SceneryObject* each : { runway, other }) {
        for (const RunwayEnd end : { RunwayEnd::Primary, RunwayEnd::Secondary }) served += IlsServes(ils, each, end);
    }
    EXPECT_EQ(served, 1);
    EXPECT_EQ(ServedEnd(ils), (IlsEnd{ runway, RunwayEnd::Primary })) << "it stands behind that one";
    Ils(ils).localizer = { 27, 0, 0, 4 };
    EXPECT_EQ(ServedEnd(ils), (IlsEnd{ other, RunwayEnd::Secondary })) << "tied both ways";
}

TEST_F(IlsEnds, AnIdentCountsMoreThanTheBytesOfAStockFileButNotThanOnesOwn) {
    As<RunwayPayload>(other).body.primaryIls = PackIdent("ISNQ");
    EXPECT_EQ(ServedEnd(ils), (IlsEnd{ runway, RunwayEnd::Primary })) << "the nearer of the two";
    ils->flags |= kStock;
    EXPECT_EQ(ServedEnd(ils), (IlsEnd{ other, RunwayEnd::Primary }));
}

TEST_F(IlsEnds, WhatADialogShowsForTheTimeBeingDoesNotCount) {
    As<RunwayPayload>(other).body.primaryNumber = 36, As<RunwayPayload>(other).body.primaryDesignator = 1;
    dialogs::MoveToClick(runway, build::At({ 9000, 0 }));
    EXPECT_EQ(ServedEnd(ils).runway, runway);
    dialogs::MoveToClick(ils, build::At({ 8000, 1300 }));
    EXPECT_EQ(ServedEnd(ils).runway, runway);
    dialogs::EndPreview();
    SetPosition(ils, build::At({ 8000, 1300 }));
    EXPECT_EQ(ServedEnd(ils).runway, other);
}

TEST_F(IlsEnds, ARunwayOfWildNumbersIsServedWhenNoOtherIs) {
    Runway().heading = std::nanf("");
    EXPECT_EQ(ServedEnd(ils), (IlsEnd{ runway, RunwayEnd::Primary }));
    As<RunwayPayload>(other).body.primaryNumber = 36, As<RunwayPayload>(other).body.primaryDesignator = 1;
    EXPECT_EQ(ServedEnd(ils), (IlsEnd{ other, RunwayEnd::Primary }));
}

TEST_F(IlsEnds, NoEndIsServedWithoutARunway) {
    DeleteObject(runway);
    DeleteObject(other);
    EXPECT_EQ(ServedEnd(ils), IlsEnd{});
    EXPECT_EQ(EndByPlace(ils), IlsEnd{});
}

}  // namespace
