// Navaids between their records and their payloads, byte by byte.
#include "bgl/NavaidRecords.h"

#include <gtest/gtest.h>

#include <cstring>

#include "bgl/RecordIds.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/SceneryBytes.h"

namespace {

using namespace model;

class NavaidRecords : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }

    // A payload of consecutive bytes up to the name.
    static SceneryObject* Numbered(uint32_t kind, size_t payloadSize, size_t nameOffset) {
        SceneryObject* object = build::Append(kind, payloadSize);
        for (size_t i = 0; i < nameOffset; ++i) object->payload[i] = static_cast<uint8_t>(i);
        return object;
    }
    static ByteList Slice(const SceneryObject* object, size_t from, size_t size) {
        return ByteList(object->payload + from, object->payload + from + size);
    }
    static std::string Written(SceneryObject* object) {
        bgl::ByteWriter out;
        bgl::WriteNavaid(object, &out);
        return HexOf(out.bytes);
    }
    // The record as an object in the list; null when none is made.
    static SceneryObject* Made(const ByteList& record) {
        bgl::ByteReader reader{ record };
        bgl::RecordHead head;
        EXPECT_TRUE(bgl::TakeRecordHead(&reader, &head));
        SceneryObject* object = bgl::MakeNavaid(head, std::span(record).subspan(6));
        if (object) AppendObject(object);
        return object;
    }
};

TEST_F(NavaidRecords, EveryPartOfAnIlsIsARecordInsideIts) {
    SceneryObject* ils = Numbered(kIls, sizeof(IlsPayload), 84);
    PayloadAs<IlsPayload>(ils).body.flags = 0x19;
    std::strcpy(PayloadAs<IlsPayload>(ils).name, "Ils 16");
    const ByteList name = Record(0x19, Text("Ils 16"));  // six characters leave no zero
    EXPECT_EQ(Written(ils),
              HexOf(Record(0x13, Join({ Slice(ils, 0, 34), Record(0x14, Slice(ils, 34, 10)),
                                        Record(0x15, Slice(ils, 44, 22)), Record(0x16, Slice(ils, 66, 18)), name }))));
}

TEST_F(NavaidRecords, AnIlsWithoutGlideSlopeAndDmeHasNoRecordsOfThem) {
    SceneryObject* ils = Numbered(kIls, sizeof(IlsPayload), 84);
    PayloadAs<IlsPayload>(ils).body.flags = 0xE7;  // all others
    EXPECT_EQ(
        Written(ils),
        HexOf(Record(0x13, Join({ Slice(ils, 0, 34), Record(0x14, Slice(ils, 34, 10)), Record(0x19, Zeros(2)) }))));
    PayloadAs<IlsPayload>(ils).body.flags = 0x08;
    EXPECT_EQ(Written(ils), HexOf(Record(0x13, Join({ Slice(ils, 0, 34), Record(0x14, Slice(ils, 34, 10)),
                                                      Record(0x15, Slice(ils, 44, 22)), Record(0x19, Zeros(2)) }))));
    PayloadAs<IlsPayload>(ils).body.flags = 0x10;
    EXPECT_EQ(Written(ils), HexOf(Record(0x13, Join({ Slice(ils, 0, 34), Record(0x14, Slice(ils, 34, 10)),
                                                      Record(0x16, Slice(ils, 66, 18)), Record(0x19, Zeros(2)) }))));
}

TEST_F(NavaidRecords, DmeOfAVorTakesTheVorsPosition) {
    SceneryObject* vor = Numbered(kVorDme, sizeof(VorDmePayload), 52);
    PayloadAs<VorDmePayload>(vor).body.flags = 0x31;
    std::strcpy(PayloadAs<VorDmePayload>(vor).name, "Seattle");
    const ByteList dme = Join({ Slice(vor, 34, 2), Slice(vor, 2, 12), Slice(vor, 48, 4) });
    EXPECT_EQ(Written(vor), HexOf(Record(0x13, Join({ Slice(vor, 0, 34), Record(0x16, dme),
                                                      Record(0x19, Join({ Text("Seattle"), Zeros(3) })) }))));
    EXPECT_EQ(HexOf(Slice(vor, 34, 18)), HexOf(dme));
}

TEST_F(NavaidRecords, VorWithoutDmeHasNameOnly) {
    SceneryObject* vor = Numbered(kVorDme, sizeof(VorDmePayload), 52);
    PayloadAs<VorDmePayload>(vor).body.flags = 0x21;
    EXPECT_EQ(Written(vor), HexOf(Record(0x13, Join({ Slice(vor, 0, 34), Record(0x19, Zeros(2)) }))));
}

TEST_F(NavaidRecords, MarkerIsItsBody) {
    SceneryObject* marker = Numbered(kMarkerBeacon, sizeof(MarkerBeaconPayload), 38);
    EXPECT_EQ(Written(marker), HexOf(Record(0x18, Slice(marker, 0, 22))));
}

TEST_F(NavaidRecords, NdbNameFillsAMultipleOfFour) {
    SceneryObject* ndb = Numbered(kNdb, sizeof(NdbPayload), 34);
    const auto expected = [&](const ByteList& name) {
        return HexOf(Record(0x17, Join({ Slice(ndb, 0, 34), Record(0x19, name) })));
    };
    EXPECT_EQ(Written(ndb), expected({}));
    std::strcpy(PayloadAs<NdbPayload>(ndb).name, "Nolla");
    EXPECT_EQ(Written(ndb), expected(Join({ Text("Nolla"), Zeros(3) })));
    std::strcpy(PayloadAs<NdbPayload>(ndb).name, "Noll");  // no zero behind four characters
    EXPECT_EQ(Written(ndb), expected(Text("Noll")));
}

TEST_F(NavaidRecords, NameOf48CharactersReadsBackWhole) {
    for (size_t length = 0; length <= 48; ++length) {
        SceneryObject* vor = build::Vor();
        SceneryObject* ndb = build::Ndb();
        const std::string name(length, 'n');
        std::strcpy(PayloadAs<VorDmePayload>(vor).name, name.c_str());
        std::strcpy(PayloadAs<NdbPayload>(ndb).name, name.c_str());
        EXPECT_EQ(std::string(PayloadAs<VorDmePayload>(Made(Hex(Written(vor)))).name), name);
        EXPECT_EQ(std::string(PayloadAs<NdbPayload>(Made(Hex(Written(ndb)))).name), name);
    }
}

ByteList Body(uint8_t type, uint8_t flags = 0x1D) {
    ByteList body = { type, flags };
    for (uint8_t i = 2; i < 34; ++i) body.push_back(i);
    return body;
}

TEST_F(NavaidRecords, TypeIsTheFirstByteAlone) {
    const SceneryObject* ils = Made(Record(0x13, Body(4)));  // as a word it would be 0x1D04
    ASSERT_NE(ils, nullptr);
    EXPECT_EQ(KindOf(ils), kIls);
    for (int type : { 0, 1, 2, 3, 5, 255 })
        EXPECT_EQ(KindOf(Made(Record(0x13, Body(static_cast<uint8_t>(type))))), kVorDme);
}

TEST_F(NavaidRecords, IlsPartsComeToTheirPlaces) {
    const ByteList localizer(10, 0x14), glideSlope(22, 0x15), dme(18, 0x16);
    const SceneryObject* ils =
        Made(Record(0x13, Join({ Body(4), Record(0x19, Text("Name")), Record(0x99, Zeros(3)), Record(0x16, dme),
                                 Record(0x15, glideSlope), Record(0x14, localizer) })));
    EXPECT_EQ(ils->payloadSize, 238u);
    EXPECT_EQ(HexOf({ ils->payload, 238 }),
              HexOf(Join({ Body(4), localizer, glideSlope, dme, Text("Name"), Zeros(238 - 88) })));
}

TEST_F(NavaidRecords, VorAndNdbPartsComeToTheirPlaces) {
    const ByteList dme(18, 0x16);
    const SceneryObject* vor = Made(Record(0x13, Join({ Body(2), Record(0x16, dme), Record(0x19, Text("Vor")) })));
    EXPECT_EQ(HexOf({ vor->payload, 117 }), HexOf(Join({ Body(2), dme, Text("Vor"), Zeros(117 - 55) })));
    const SceneryObject* ndb = Made(Record(0x17, Join({ Body(1), Record(0x19, Text("Ndb")) })));
    EXPECT_EQ(HexOf({ ndb->payload, 99 }), HexOf(Join({ Body(1), Text("Ndb"), Zeros(99 - 37) })));
    const SceneryObject* marker = Made(Record(0x18, Join({ Body(1), Record(0x19, Text("No")) })));
    ByteList expected = Body(1);
    expected.resize(22);  // a marker's record ends there
    EXPECT_EQ(HexOf({ marker->payload, 38 }), HexOf(Join({ expected, Zeros(16) })));
}

TEST_F(NavaidRecords, NamesAreCutTo48Characters) {
    const ByteList name = Record(0x19, Text(std::string(60, 'x')));
    EXPECT_EQ(std::string(PayloadAs<IlsPayload>(Made(Record(0x13, Join({ Body(4), name })))).name),
              std::string(48, 'x'));
    EXPECT_EQ(std::string(PayloadAs<VorDmePayload>(Made(Record(0x13, Join({ Body(1), name })))).name),
              std::string(48, 'x'));
    EXPECT_EQ(std::string(PayloadAs<NdbPayload>(Made(Record(0x17, Join({ Body(1), name })))).name),
              std::string(48, 'x'));
}

TEST_F(NavaidRecords, CutAnywhereNothingIsReadBehind) {
    const ByteList whole = Record(0x13, Join({ Body(4), Record(0x14, ByteList(10, 1)), Record(0x15, ByteList(22, 2)),
                                               Record(0x16, ByteList(18, 3)), Record(0x19, Text("Name")) }));
    for (size_t size = 6; size < whole.size(); ++size) {
        const ByteList cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
        const SceneryObject* ils = Made(cut);
        ASSERT_EQ(ils != nullptr, size >= 6 + 34) << size;
        if (!ils) continue;
        const int number = PayloadAs<IlsPayload>(ils).localizer.runwayNumber;
        EXPECT_EQ(number, size >= 40 + 16 ? 1 : 0) << size;
    }
}

TEST_F(NavaidRecords, RecordsThatAreNoNavaidsMakeNothing) {
    for (int id : { 0x03, 0x14, 0x16, 0x22, 0x99 })
        EXPECT_EQ(Made(Record(static_cast<uint16_t>(id), Zeros(60))), nullptr);
    EXPECT_EQ(Made(Record(0x13, {})), nullptr);
    EXPECT_EQ(Made(Record(0x18, Zeros(21))), nullptr);
    EXPECT_EQ(Made(Record(0x17, Zeros(33))), nullptr);
}

TEST_F(NavaidRecords, KeysComeFromTheirPlacesInEachKind) {
    const auto check = [](SceneryObject* object, uint32_t longitude, uint32_t ident) {
        const bgl::NavaidKey key = bgl::KeyOf(object);
        EXPECT_EQ(key.position.longitude & 0xFF, longitude);
        EXPECT_EQ(key.position.latitude & 0xFF, longitude + 4);
        EXPECT_EQ(key.ident & 0xFF, ident);
        EXPECT_EQ(key.region & 0xFF, ident + 4);
    };
    check(Numbered(kIls, sizeof(IlsPayload), 84), 2, 26);
    check(Numbered(kVorDme, sizeof(VorDmePayload), 52), 2, 26);
    check(Numbered(kNdb, sizeof(NdbPayload), 34), 6, 26);
    check(Numbered(kMarkerBeacon, sizeof(MarkerBeaconPayload), 22), 2, 14);
}

}  // namespace
