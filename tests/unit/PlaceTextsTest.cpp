#include "model/PlaceTexts.h"

#include <type_traits>

#include "fakes/DialogFixture.h"

namespace {

using namespace model;

class PlaceTextsTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        airport = build::Airport("KSEA");
        SetAirportName("Seattle-Tacoma Intl");
        state.country = "United States";
        state.state = "Washington";
        state.city = "Seattle";
        before = CurrentPlaceTexts();
    }

    void Rename(const char* city) {
        PlaceTexts texts = CurrentPlaceTexts();
        texts.city = city;
        BeginAction();
        ModifyAirport(CopyObject(airport), texts);
    }

    SceneryObject* airport = nullptr;
    PlaceTexts before;
};

TEST_F(PlaceTextsTest, UndoAndRedoBringTheTextsWithTheRecord) {
    PlaceTexts texts = before;
    texts.name = {};
    texts.name[0] = 'X';
    texts.country = "Canada";
    texts.state.clear();
    texts.icao = "CYVR";
    SceneryObject* edited = CopyObject(airport);
    As<AirportRecord>(edited).altitude = 4000;
    BeginAction();
    ModifyAirport(edited, texts);
    EXPECT_EQ(CurrentPlaceTexts(), texts);
    EXPECT_EQ(AirportName(), "X");
    EXPECT_EQ(+As<AirportRecord>(airport).altitude, 4000);
    for (int round = 0; round < 3; ++round) {
        Undo();
        EXPECT_EQ(CurrentPlaceTexts(), before);
        EXPECT_EQ(+As<AirportRecord>(airport).altitude, 0);
        Redo();
        EXPECT_EQ(CurrentPlaceTexts(), texts);
        EXPECT_EQ(+As<AirportRecord>(airport).altitude, 4000);
    }
}

TEST_F(PlaceTextsTest, AnotherEditOfTheRecordLeavesTheTextsAlone) {
    Rename("Tacoma");
    BeginAction();
    SceneryObject* edited = CopyObject(airport);
    As<AirportRecord>(edited).altitude = 1;
    ModifyObject(edited, airport);
    Undo();
    EXPECT_EQ(state.city, "Tacoma");
    Undo();
    EXPECT_EQ(state.city, "Seattle");
    Redo();
    Redo();
    EXPECT_EQ(state.city, "Tacoma");
    EXPECT_EQ(+As<AirportRecord>(airport).altitude, 1);
}

TEST_F(PlaceTextsTest, ANameWithoutPaddingComesBackByteForByte) {
    std::fill(std::begin(state.airportName), std::end(state.airportName), 'N');
    before = CurrentPlaceTexts();
    PlaceTexts texts = before;
    texts.name = {};
    BeginAction();
    ModifyAirport(CopyObject(airport), texts);
    EXPECT_EQ(AirportName(), "");
    Undo();
    EXPECT_EQ(AirportName(), std::string(48, 'N'));
}

TEST_F(PlaceTextsTest, TheHeaderAndPayloadOfAnEntryHoldNoTexts) {
    const std::vector<uint8_t> record = Bytes(airport);
    Rename("Tacoma");
    EXPECT_EQ(Bytes(state.undoHead), record);
    EXPECT_EQ(Bytes(airport), record);
    EXPECT_EQ(record.size(), 46u);
    EXPECT_EQ(sizeof(SceneryObject), 6 * sizeof(void*) + 40) << "six pointers, eleven words, and their padding";
    static_assert(std::is_trivially_copyable_v<SceneryObject>);
}

TEST_F(PlaceTextsTest, TextsGoWithTheEntriesThatTheHistoryDrops) {
    for (int i = 0; i < 2 * kUndoActions; ++i) Rename(std::to_string(i).c_str());
    EXPECT_EQ(state.otherTexts.size(), static_cast<size_t>(kUndoActions));
    Undo();
    Undo();
    EXPECT_EQ(state.otherTexts.size(), static_cast<size_t>(kUndoActions));
    Rename("after");  // frees the two that could be redone
    EXPECT_EQ(state.otherTexts.size(), static_cast<size_t>(kUndoActions - 1));
    ClearHistory();
    EXPECT_TRUE(state.otherTexts.empty());
    EXPECT_EQ(state.city, "after");
}

TEST_F(PlaceTextsTest, UndoOfASingleEntryLeavesTheModifiedFlag) {
    Rename("Tacoma");
    state.modified = false;
    Undo();
    EXPECT_FALSE(state.modified);
}

}  // namespace
