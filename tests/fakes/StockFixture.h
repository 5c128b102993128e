// StockFixture.h - a simulator's folder with stock files of navaids, and an airport beside which they lie.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bgl/Cells.h"
#include "bgl/FileBuilder.h"
#include "bgl/NavaidRecords.h"
#include "bgl/StockFiles.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/SceneryBytes.h"
#include "fakes/TemporaryFolder.h"
#include "model/Geodesy.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace stock {

using namespace model;
namespace fs = std::filesystem;

constexpr double kMile = kMetresPerNauticalMile;

inline EncodedPoint PointFrom(LatLon origin, double eastMiles, double northMiles) {
    const BglPoint code = LatLonToBgl(LocalToLatLon(origin, { eastMiles * kMile, northMiles * kMile }));
    return { (code.lonCode + 0x30000000u) % 0x30000000u, code.latCode };  // a file's longitudes lie within the turn
}

inline LatLon Degrees(double north, double east) { return { north * kRadiansPerDegree, -east * kRadiansPerDegree }; }

struct TestNavaid {
    uint16_t recordId;
    uint8_t type;
    EncodedPoint place;
    std::string ident;
    uint32_t region = 0;
};

inline ByteList NavaidRecordOf(const TestNavaid& navaid) {
    ByteList body(34);
    const auto put = [&](size_t at, const ByteList& bytes) {
        std::copy(bytes.begin(), bytes.end(), body.begin() + static_cast<ptrdiff_t>(at));
    };
    body[0] = navaid.type;
    const bool isNdb = navaid.recordId == 0x17, isMarker = navaid.recordId == 0x18;
    put(isNdb ? 6 : 2, Join({ U32(navaid.place.longitude), U32(navaid.place.latitude) }));
    put(isMarker ? 14 : 26, Join({ U32(PackIdent(navaid.ident) << 5 | 2), U32(navaid.region) }));
    if (isMarker) body.resize(22);
    return Record(navaid.recordId, body);
}

inline ByteList StockFile(const std::vector<TestNavaid>& navaids) {
    bgl::SectionContent sections[] = { { 0x13, 1, {} }, { 0x17, 1, {} }, { 0x18, 1, {} } };
    for (const TestNavaid& navaid : navaids) {
        for (bgl::SectionContent& section : sections) {
            if (section.type != navaid.recordId) continue;
            bgl::SubsectionContent* subsection = bgl::SubsectionOf(&section, bgl::CellOf(navaid.place));
            ++subsection->recordCount;
            const ByteList record = NavaidRecordOf(navaid);
            bgl::PutBytes(&subsection->records, record.data(), record.size());
        }
    }
    return bgl::AssembleFile(sections, kTestTime);
}

class StockFixture : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
        bgl::ForgetStockFiles();
    }
    void TearDown() override {
        ClearModel();
        bgl::ForgetStockFiles();
    }
    std::string Simulator() const { return folder.string(); }

    void Put(const std::string& region, const std::string& name, const ByteList& bytes) const {
        const fs::path in = folder / "Scenery" / region / "Scenery";
        fs::create_directories(in);
        std::ofstream(in / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    // The name of the airport file for the block of a point.
    static std::string BlockFile(EncodedPoint point) {
        char name[32];
        std::snprintf(name, sizeof name, "AP9%02u%02u0.bgl", point.longitude >> 23, point.latitude >> 23);
        return name;
    }
    void OpenAt(LatLon place) {
        ClearModel();
        origin = place;
        SceneryObject* airport = build::Airport("KSEA");
        SetEncodedPosition(airport, LatLonToBgl(place));
    }
    EncodedPoint At(double eastMiles, double northMiles) const { return PointFrom(origin, eastMiles, northMiles); }

    static std::string Idents() {
        std::string text;
        for (const SceneryObject* o = state.head; o; o = o->next) {
            if (!bgl::IsNavaid(o)) continue;
            text += UnpackIdent(bgl::KeyOf(o).ident >> kIdentShift) + " ";
            EXPECT_EQ(IsStock(o), true);
        }
        return text;
    }
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    LatLon origin;
};

}  // namespace stock
