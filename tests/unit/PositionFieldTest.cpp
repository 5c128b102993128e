#include "dialogs/PositionField.h"

#include "dialogs/TextField.h"
#include "fakes/DialogFixture.h"

namespace {

using namespace dialogs;

class PositionField : public DialogFixture {};

TEST_F(PositionField, APlacedRecordShowsItsPositionAndAnUnplacedOneNothing) {
    model::SceneryObject* node = build::Node();
    EXPECT_EQ(ShowPoint(PointOf(node)).latitude, "N47* 00.0000'");
    EXPECT_EQ(ShowPoint(kPlaceholder).latitude, "");
    EXPECT_EQ(ShowPoint(kPlaceholder).longitude, "");
}

TEST_F(PositionField, UnchangedTextsNeverEncodeThePositionAgain) {
    for (uint32_t code = 0x07000000; code < 0x07000100; ++code) {
        model::EncodedPoint point = { code, code };
        const CoordinateTexts shown = ShowPoint(point);
        ASSERT_TRUE(ReadPoint(shown, shown, &point, &bad));
        ASSERT_EQ(+point.longitude, code);
        ASSERT_EQ(+point.latitude, code);
    }
}

TEST_F(PositionField, AChangedTextLeavesTheOtherCoordinateBitForBit) {
    for (uint32_t code = 0x07000000; code < 0x07000100; ++code) {
        model::EncodedPoint point = { code, code };
        const CoordinateTexts shown = ShowPoint(point);
        ASSERT_TRUE(ReadPoint(shown, { "N10", shown.longitude }, &point, &bad));
        ASSERT_EQ(+point.longitude, code);
        ASSERT_NE(+point.latitude, code);
        point = { code, code };
        ASSERT_TRUE(ReadPoint(shown, { shown.latitude, "W10" }, &point, &bad));
        ASSERT_NE(+point.longitude, code);
        ASSERT_EQ(+point.latitude, code);
    }
}

TEST_F(PositionField, AnUntouchedTextThatCouldNotBeEnteredIsNotJudged) {
    model::EncodedPoint pole = { 0x07000000, 0 };
    const CoordinateTexts shown = ShowPoint(pole);
    ASSERT_EQ(shown.latitude, "N90* 00.0000'");
    EXPECT_TRUE(ReadPoint(shown, { shown.latitude, "W10" }, &pole, &bad));
    EXPECT_EQ(+pole.latitude, 0u);
    model::EncodedPoint meridian = { 0, 0x07000000 };
    const CoordinateTexts there = ShowPoint(meridian);
    ASSERT_EQ(there.longitude, "W180* 00.0000'");
    EXPECT_TRUE(ReadPoint(there, { "N10", there.longitude }, &meridian, &bad));
    EXPECT_EQ(+meridian.longitude, 0u);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(PositionField, AnUnplacedRecordNeedsBothTexts) {
    model::EncodedPoint point = kPlaceholder;
    EXPECT_FALSE(ReadPoint({}, { "N47", "" }, &point, &bad));
    EXPECT_EQ(bad.field, Field::Longitude);
    EXPECT_FALSE(ReadPoint({}, { "", "W122" }, &point, &bad));
    EXPECT_EQ(bad.field, Field::Latitude);
    EXPECT_TRUE(IsPlaceholder(point));
}

TEST_F(PositionField, AnErrorNamesTheFieldAndKeepsThePosition) {
    model::SceneryObject* node = build::Node();
    const auto before = Bytes(node);
    const CoordinateTexts shown = ShowPoint(PointOf(node));
    EXPECT_FALSE(ReadPosition(shown, { "N 51", shown.longitude }, node, &bad));
    EXPECT_EQ(bad.field, Field::Latitude);
    EXPECT_FALSE(ReadPosition(shown, { shown.latitude, "W180" }, node, &bad));
    EXPECT_EQ(bad.field, Field::Longitude);
    EXPECT_EQ(LastMessage(), "ERROR: Longitude cannot be more than 180 degrees");
    EXPECT_EQ(fake.messages.size(), 2u);
    EXPECT_EQ(Bytes(node), before);
}

TEST_F(PositionField, AnUnplacedRecordIsRefusedByName) {
    model::SceneryObject* ndb = build::Ndb();
    EXPECT_TRUE(RequirePosition(ndb, "the NDB", &bad));
    SetPoint(ndb, kPlaceholder);
    EXPECT_FALSE(RequirePosition(ndb, "the NDB", &bad));
    EXPECT_EQ(bad.field, Field::Latitude);
    EXPECT_EQ(LastMessage(),
              "ERROR: You must enter a latitude and longitude for the NDB.\n"
              "You may click on the main window to set the latitude and longitude");
}

class TextField : public DialogFixture {
protected:
    char buffer[6] = { 'o', 'l', 'd', 'X', 'Y', 'Z' };
};

TEST_F(TextField, TextsAreWindows1252InTheRecord) {
    EXPECT_TRUE(ReadName("old", "K\xC3\xB6ln", buffer, sizeof buffer, &bad));
    EXPECT_EQ(std::string(buffer, 6), std::string("K\xF6ln\0\0", 6));
    EXPECT_EQ(ShowText(buffer, sizeof buffer), "K\xC3\xB6ln");
}

TEST_F(TextField, AnUnchangedTextKeepsEveryByteOfItsBuffer) {
    EXPECT_TRUE(ReadName("same", "same", buffer, sizeof buffer, &bad));
    EXPECT_EQ(std::string(buffer, 6), "oldXYZ");
}

TEST_F(TextField, LongerTextsAndForeignCharactersAreRefused) {
    EXPECT_FALSE(ReadName("old", "123456", buffer, sizeof buffer, &bad));
    EXPECT_EQ(LastMessage(), "ERROR: The name may have at most 5 characters");
    EXPECT_EQ(bad.field, Field::Name);
    EXPECT_FALSE(ReadName("old", "\xE4\xB8\xAD", buffer, sizeof buffer, &bad));
    EXPECT_EQ(LastMessage(), "ERROR: The name contains a character that scenery files cannot hold");
    EXPECT_FALSE(ReadName("old", "a\tb", buffer, sizeof buffer, &bad));
    EXPECT_EQ(std::string(buffer, 6), "oldXYZ");
    EXPECT_TRUE(ReadName("old", "\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6", buffer, sizeof buffer, &bad));
}

TEST_F(TextField, IdentifiersAreOneToFiveLettersOrDigitsUpperCased) {
    uint32_t packed = 0;
    EXPECT_TRUE(ReadIdent("", "isea", 1, &packed, &bad));
    EXPECT_EQ(packed, model::PackIdent("ISEA"));
    for (const char* text : { "", "ABCDEF", "A B", "A-1", "\xC3\x84" }) {
        EXPECT_FALSE(ReadIdent("old", text, 1, &packed, &bad)) << text;
        EXPECT_EQ(LastMessage(), "ERROR: The identifier must be 1 to 5 letters or digits");
        EXPECT_EQ(bad.field, Field::Ident);
    }
    EXPECT_EQ(packed, model::PackIdent("ISEA"));
    EXPECT_TRUE(ReadIdent("old", "", 0, &packed, &bad));
    EXPECT_EQ(packed, 0u);
}

TEST_F(TextField, TheLowBitsOfAnIdentWordStay) {
    model::SceneryObject* ils = build::Ils("ISEA");
    uint8_t* place = ils->payload + offsetof(model::VorRecord, ident);
    EXPECT_EQ(ShowIdentWord(place), "ISEA");
    EXPECT_TRUE(ReadIdentWord("ISEA", "ISNQ", 1, place, &bad));
    EXPECT_EQ(+As<model::IlsPayload>(ils).body.ident, model::PackIdent("ISNQ") << 5 | 2);
}

}  // namespace
