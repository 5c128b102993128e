// NavaidSymbolTest.cpp - the editors of navaids, opened at their symbols on the map.
#include <string>
#include <vector>

#include "NavaidSteps.h"

namespace ui {

class NavaidSymbolTest : public NavaidTest {
protected:
    struct Symbol {
        const char* name;
        POINT at;
        const wchar_t* title;
        const char* ident;
    };

    // The beam of the ILS, whose course leads south, lies above its localizer and so beyond the map.
    std::vector<Symbol> Symbols() const {
        return { { "NDB", Beside(0, 0), kNdb, "ZQ" },
                 { "VOR", Beside(1, 0), kVor, "ZQX" },
                 { "localizer", Beside(2, 0), kIls, "ISNQ" },
                 { "glide slope", Beside(3, 0), kIls, "ISNQ" },
                 { "marker beacon", Beside(0, 1), kMarker, "ZQM" } };
    }
    void StartWithSymbols() {
        ASSERT_NO_FATAL_FAILURE(StartOnGround());
        Command(IDM_LOCK);  // a row of the list does not move the map then
        ASSERT_NO_FATAL_FAILURE(PlaceMarker());
        ASSERT_NO_FATAL_FAILURE(PlaceIls());
        Command(IDM_LOCK);
        CloseDialog(List(), IDCANCEL);  // it stands over the map
        ASSERT_NO_FATAL_FAILURE(Place(Open(IDM_INSERT_NDB, kNdb), Symbols()[0], L"362.5"));
        ASSERT_NO_FATAL_FAILURE(Place(Open(IDM_INSERT_VOR, kVor), Symbols()[1], L"113.70"));
    }
    // The dialog of the symbol's navaid is open: its own, nobody else's.
    void ExpectOpened(HWND dialog, const Symbol& symbol) {
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(Shown(dialog, IDC_NAV_IDENT), symbol.ident);
        CloseDialog(dialog, IDCANCEL);
    }

private:
    POINT Beside(int column, int row) const {
        constexpr int kApart = 120;  // pixels
        return { ground.x + column * kApart, ground.y + row * kApart };
    }
    void Place(HWND dialog, const Symbol& symbol, const wchar_t* frequency = nullptr) {
        ASSERT_NE(dialog, nullptr);
        Enter(dialog, IDC_NAV_IDENT, Wide(symbol.ident).c_str());
        if (frequency) Enter(dialog, IDC_NAV_FREQUENCY, frequency);
        ClickMap(symbol.at);
        CloseDialog(dialog, IDOK);
    }
    void PlacePart(HWND dialog, int field, POINT at) {
        SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(ChildWithId(dialog, field)), TRUE);
        ClickMap(at);
    }
    void PlaceIls() {
        const HWND dialog = Properties("\tISNQ\t", kIls);
        ASSERT_NE(dialog, nullptr);
        PlacePart(dialog, IDC_NAV_RANGE, Symbols()[2].at);
        PlacePart(dialog, IDC_ILS_SLOPE_RANGE, Symbols()[3].at);
        CloseDialog(dialog, IDOK);
    }
    void PlaceMarker() {
        const HWND dialog = Open(IDM_INSERT_MARKER_BEACON, kNewMarkers);
        ASSERT_NE(dialog, nullptr);
        CloseDialog(dialog, IDOK);
        Place(Properties("\tIM\t", kMarker), Symbols()[4]);
    }
};

TEST_F(NavaidSymbolTest, ADoubleClickOnItsSymbolOpensANavaid) {
    ASSERT_NO_FATAL_FAILURE(StartWithSymbols());
    for (const Symbol& symbol : Symbols()) {
        SCOPED_TRACE(symbol.name);
        ASSERT_NO_FATAL_FAILURE(ExpectOpened(OpenByDoubleClick(symbol.at, symbol.title), symbol));
    }
}

TEST_F(NavaidSymbolTest, PropertiesOfTheMapsMenuOpensTheNavaidThatWasClicked) {
    ASSERT_NO_FATAL_FAILURE(StartWithSymbols());
    for (const Symbol& symbol : Symbols()) {
        SCOPED_TRACE(symbol.name);
        ASSERT_NO_FATAL_FAILURE(ExpectOpened(OpenByRightClick(symbol.at, symbol.title), symbol));
    }
}

}  // namespace ui
