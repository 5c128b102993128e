// LibraryDamageFixture.h - a library on the disk whose files and caches are as they should not be.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "bgl/AirportIndex.h"
#include "bgl/LibraryScan.h"
#include "bgl/SceneryStructure.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeProgress.h"
#include "fakes/TestLibrary.h"

namespace damage {

using bgl::FileKind;
using bgl::library;
using bgl::ScanResult;
using Bytes = std::vector<uint8_t>;

template <class T>
void Set(Bytes* bytes, size_t offset, T value) {
    ASSERT_LE(offset + sizeof value, bytes->size());
    std::memcpy(bytes->data() + offset, &value, sizeof value);
}

// Offsets in what MakeSceneryFile gives.
constexpr size_t kSectionCount = 20, kNameSection = 76;
constexpr size_t kTypeOf = 0, kClassOf = 4, kCountOf = 8, kTableOf = 12;

constexpr size_t kNameEntrySize = 20;  // of one airport in a name list

class LibraryDamageFixture : public testing::Test {
protected:
    LibraryDamageFixture() {
        ResetFakes();
        fakeProgress = {};
        library = {};
    }
    ~LibraryDamageFixture() override {
        fakeProgress = {};
        library = {};
    }

    static Bytes Sound() {
        return MakeSceneryFile({ { "KSEA", "Seattle-Tacoma Intl", "United States", "Washington", "Seattle" },
                                 { "KBFI", "Boeing", "United States", "Washington", "Seattle" } });
    }
    // What the scan of one file says; its airports are in the library then.
    ScanResult Scan(const Bytes& bytes) {
        disk.Put("A", "scan.bgl", bytes);
        library = {};
        return bgl::ScanBglHeader(bgl::FileNumberOf(disk.simulator + "\\A\\scenery\\scan.bgl"));
    }
    void Collect() { bgl::CollectAllAirports(disk.simulator, disk.program); }

    TestLibrary disk;
};

// The example of the published layout, by hand: 136 bytes of names for one airport.

}  // namespace damage
