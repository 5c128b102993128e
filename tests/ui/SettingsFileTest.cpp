// SettingsFileTest.cpp - what the settings file keeps through a session, however it was written.
#include <algorithm>
#include <string>

#include "Resource.h"
#include "UiFiles.h"
#include "UiHarness.h"

namespace ui {

namespace {

// As text, without the zeros of its encoding.
std::string SettingsText() {
    std::string text = BytesOf(kSettingsFile);
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    return text;
}

void PutSettings(const std::string& bytes) {
    FILE* file = _wfopen(kSettingsFile, L"wb");
    ASSERT_NE(file, nullptr);
    fwrite(bytes.data(), 1, bytes.size(), file);
    fclose(file);
}

}  // namespace

class SettingsFileTest : public UiTest {
protected:
    void TearDown() override {
        UiTest::TearDown();
        DeleteFileW(kSettingsFile);
    }
    // The program took over the setting of the grid, and keeps what it does not know, in UTF-16.
    void ExpectReadAndRewritten() {
        EXPECT_FALSE(IsChecked(IDM_GRID));
        EXPECT_EQ(CloseProgram(), 0u);
        EXPECT_EQ(BytesOf(kSettingsFile).substr(0, 2), "\xFF\xFE");
        const std::string text = SettingsText();
        EXPECT_NE(text.find("Mine=Z\xFCrich\r\n"), std::string::npos) << text;
        EXPECT_NE(text.find("ShowLatLongGrid=0\r\n"), std::string::npos) << text;
        EXPECT_EQ(text.rfind("[General]"), 2u) << "a section of the same name again";
    }
};

TEST_F(SettingsFileTest, QuotesAndBlanksAtTheEndsOfATextStay) {
    constexpr const char* kTexts[] = { "LastSavedFile=\" two blanks  \"\r\n", "SpecName1=\"\"Air India\"\"\r\n",
                                       "SpecName2=\"'Air France'\"\r\n" };
    Start(L"",
          (std::string(kQuietSettings) + kTexts[0] + "[Most Used Parking Specs]\r\n" + kTexts[1] + kTexts[2]).c_str());
    EXPECT_EQ(CloseProgram(), 0u);
    const std::string text = SettingsText();
    for (const char* expected : kTexts) EXPECT_NE(text.find(expected), std::string::npos) << expected << text;
    EXPECT_NE(text.find("SpecName20="), std::string::npos) << "nothing was written";
}

TEST_F(SettingsFileTest, SettingsThatAnEditorKeptAsUtf8AreReadAndBecomeUtf16) {
    Start(L"", "\xEF\xBB\xBF[General]\r\nNextUpdateNotice=9999\r\nShowLatLongGrid=0\r\nMine=Z\xC3\xBCrich\r\n");
    ExpectReadAndRewritten();
    EXPECT_EQ(SettingsText().find("[General]"), 2u);
}

TEST_F(SettingsFileTest, SettingsInBigEndianUtf16AreReadAndBecomeLittleEndian) {
    std::string bytes = "\xFE\xFF";
    for (const char c : std::string(kQuietSettings) + "ShowLatLongGrid=0\r\nMine=Z\xFCrich\r\n") bytes += { '\0', c };
    PutSettings(bytes);
    Start(L"", nullptr);
    ExpectReadAndRewritten();
}

}  // namespace ui
