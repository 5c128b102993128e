#include "model/Blocks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"
#include "model/EditHistory.h"

namespace {

using namespace model;

class BlocksTest : public testing::Test {
protected:
    void SetUp() override { Reset(); }
    void TearDown() override { Reset(); }
    static void Reset() {
        ResetFakes();
        ClearModel();
        ASSERT_EQ(BlocksOut(), 0u) << "an object was forgotten";
    }
};

// A pool of its own: in builds that look for memory errors, the one of all objects is not used.
TEST_F(BlocksTest, BlocksDoNotOverlapAndKeepWhatIsWrittenIntoThem) {
    struct Taken {
        uint8_t* block;
        size_t size;
        uint8_t fill;
    };
    BlockPool pool;
    std::vector<Taken> taken;
    Random random{ 3 };
    const auto check = [](const Taken& one) {
        return std::all_of(one.block, one.block + one.size, [&](uint8_t byte) { return byte == one.fill; });
    };
    for (int i = 0; i < 20000; ++i) {
        if (!taken.empty() && OneIn(&random, 3)) {
            std::swap(taken[Below(&random, static_cast<uint32_t>(taken.size()))], taken.back());
            ASSERT_TRUE(check(taken.back())) << i;
            GiveTo(&pool, taken.back().block, taken.back().size);
            taken.pop_back();
        } else {
            const size_t size = OneIn(&random, 20) ? Below(&random, 100000) : Below(&random, 300);
            auto* block = static_cast<uint8_t*>(TakeFrom(&pool, size));
            ASSERT_NE(block, nullptr);
            ASSERT_EQ(reinterpret_cast<uintptr_t>(block) % alignof(SceneryObject), 0u);
            const auto fill = static_cast<uint8_t>(i);
            std::fill_n(block, size, fill);
            taken.push_back({ block, size, fill });
        }
    }
    for (const Taken& one : taken) {
        EXPECT_TRUE(check(one));
        GiveTo(&pool, one.block, one.size);
    }
    EXPECT_EQ(pool.out, 0u);
    EXPECT_GT(pool.chunks.size(), 3u);
    ReleasePool(&pool);
    EXPECT_TRUE(pool.chunks.empty());
}

TEST_F(BlocksTest, ABlockThatIsGivenBackServesTheNextOfItsSizeClass) {
    BlockPool pool;
    void *a = TakeFrom(&pool, 33), *b = TakeFrom(&pool, 48), *other = TakeFrom(&pool, 49);
    EXPECT_EQ(static_cast<uint8_t*>(b) - static_cast<uint8_t*>(a), 48) << "one behind the other";
    GiveTo(&pool, a, 33);
    GiveTo(&pool, b, 48);
    EXPECT_NE(TakeFrom(&pool, 50), a);
    EXPECT_EQ(TakeFrom(&pool, 40), b);
    EXPECT_EQ(TakeFrom(&pool, 48), a);
    EXPECT_EQ(pool.out, 4u);
    EXPECT_EQ(static_cast<uint8_t*>(other) - static_cast<uint8_t*>(a), 96);
    pool.out = 0;
    ReleasePool(&pool);
}

TEST_F(BlocksTest, AChunkIsUsedToItsEndAndThePoolStaysWhileABlockIsOut) {
    BlockPool pool;
    const size_t inOneChunk = 65536 / kLargestBlock;
    std::vector<void*> taken;
    for (size_t i = 0; i < inOneChunk; ++i) taken.push_back(TakeFrom(&pool, kLargestBlock));
    EXPECT_EQ(pool.chunks.size(), 1u);
    EXPECT_EQ(pool.restSize, 0u);
    taken.push_back(TakeFrom(&pool, 0));
    EXPECT_EQ(pool.chunks.size(), 2u);
    while (taken.size() > 1) {
        GiveTo(&pool, taken.back(), taken.size() == inOneChunk + 1 ? 0 : kLargestBlock);
        taken.pop_back();
    }
    ReleasePool(&pool);
    EXPECT_EQ(pool.chunks.size(), 2u) << "one block is out";
    GiveTo(&pool, taken[0], kLargestBlock);
    ReleasePool(&pool);
    EXPECT_TRUE(pool.chunks.empty());
    void* single = TakeFrom(&pool, kLargestBlock + 1);
    EXPECT_EQ(pool.out, 0u);
    GiveTo(&pool, single, kLargestBlock + 1);
}

TEST_F(BlocksTest, AnObjectThatOutlivesTheAirportStaysWhole) {
    build::Airport("KSEA");
    SceneryObject* copy = CopyObject(build::Spot({}, { "JAL", "KLM" }));
    const std::vector<uint8_t> payload(copy->payload, copy->payload + copy->payloadSize);
    ClearModel();
    for (int i = 0; i < 1000; ++i) build::Node();
    EXPECT_EQ(KindOf(copy), uint32_t{ kParkingSpot });
    EXPECT_EQ(std::memcmp(copy->payload, payload.data(), payload.size()), 0);
    FreeObject(copy);
}

TEST_F(BlocksTest, ClosingAnAirportGivesEverythingBack) {
    for (uint64_t seed = 0; seed < 20; ++seed) {
        MakeRandomAirport(seed, LargeCounts());
        for (int i = 0; i < 30; ++i) {
            SceneryObject* spot = FirstOfKind(state.head, kParkingSpot);
            BeginAction();
            ModifyObject(ResizeCopy(spot, 255), spot);
            DeleteObject(FirstOfKind(state.head, kTaxiNode));
            AddObject(CreateObject(kApron, 37));
            if (i % 2 != 0) Undo();
        }
        ClearModel();
        ASSERT_EQ(BlocksOut(), 0u) << seed;
    }
}

}  // namespace
