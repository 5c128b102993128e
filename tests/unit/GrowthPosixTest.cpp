// GrowthPosixTest.cpp - what is done again and again leaves no memory behind that is still referred to. Memory that is
// not is found by the sanitizer in every test.
#include <gtest/gtest.h>

#include <malloc.h>

#include <cstdint>
#include <cstdlib>

#include "app/Airport.h"
#include "app/AppState.h"
#include "app/SaveAirport.h"
#include "bgl/AirportWriter.h"
#include "fakes/FakeShell.h"
#include "fakes/RecordingCanvas.h"
#include "fakes/Rounds.h"
#include "fakes/TestLibrary.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "platform/Files.h"
#include "sample/AirportModel.h"
#include "sample/Layouts.h"
#include "sample/RunwayPlans.h"
#include "sample/World.h"

// There only under the sanitizer, which has an allocator of its own.
extern "C" size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

namespace {

size_t BytesInUse() {
    if (__sanitizer_get_current_allocated_bytes) return __sanitizer_get_current_allocated_bytes();
    const auto heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

class Growth : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        WriteHub();
        ResetProgram();
        map::ResizeView(1280, 1024);
        app::state.programFolder = disk.program;
    }
    void TearDown() override { ResetProgram(); }

    void WriteHub() {
        sample::World world;
        std::string error;
        ASSERT_TRUE(sample::LoadWorld(TARVO_SAMPLE_DATA, &world, &error)) << error;
        const sample::AirportRow* row = sample::FindAirport(world, sample::kHubIdent);
        ASSERT_NE(row, nullptr);
        sample::AirportPlan plan = sample::PlanAirport(world, *row, 0);
        sample::LayOut(&plan);
        sample::MakeAirportModel(plan);
        std::vector<uint8_t> bytes;
        std::string refusal;
        ASSERT_TRUE(bgl::BuildAirportFile(0, &bytes, &refusal)) << refusal;
        ASSERT_TRUE(platform::WriteFileWhole(hub, bytes));
    }

    static void Paint() {
        CallCounts counts;
        platform::Canvas canvas = CountingCanvas(&counts);
        map::PaintMap(&canvas);
        ASSERT_GT(counts.shapes, 100u);
    }

    // Opens, paints by day and by night, edits, undoes, saves, closes.
    void OpenAndClose(int round) {
        ASSERT_TRUE(app::OpenAirportFile(hub, sample::kHubIdent));
        map::layers.lights = round % 2 != 0;
        Paint();
        model::BeginAction();
        model::AddObject(model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord)));
        model::Undo();
        if (round % 10 == 0) {
            ASSERT_TRUE(app::SaveAirport());
        }
        app::CloseAirport();
        ASSERT_EQ(model::state.head, nullptr);
    }

    // How many bytes more are in use after the rounds. The first few fill what is kept for good.
    template <class Round>
    static int64_t GrowthOver(int rounds, Round round) {
        constexpr int kFirst = 20;
        for (int i = 0; i < kFirst && !HasFatalFailure(); ++i) round(i);
        const auto before = static_cast<int64_t>(BytesInUse());
        for (int i = 0; i < rounds && !HasFatalFailure(); ++i) round(i);
        return static_cast<int64_t>(BytesInUse()) - before;
    }

    TestLibrary disk;
    const std::string hub = disk.program + "/TV2_HUB.bgl";
};

TEST_F(Growth, WhatIsMeasuredGrowsWithWhatIsKept) {
    std::vector<std::vector<uint8_t>> kept;
    kept.reserve(100);
    EXPECT_GE(GrowthOver(50, [&](int) { kept.emplace_back(1000); }), 50000);
}

TEST_F(Growth, OpeningAndClosingTheHubKeepsNoMemory) {
    EXPECT_LE(GrowthOver(Rounds(30, 10000), [&](int round) { OpenAndClose(round); }), 0);
}

}  // namespace
