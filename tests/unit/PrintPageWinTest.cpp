// PrintPageWinTest.cpp - the printed page through GDI: on a sheet of pixels, and as the records of a metafile.
#include <windows.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "app/PrinterWin.h"
#include "fakes/GuiObjectsWin.h"
#include "fakes/MapFixture.h"
#include "platform/CanvasGdiWin.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

// Letter paper at 100 pixels to the inch, a quarter of an inch of which cannot be printed on.
constexpr map::PrintDevice kCoarse = { 850, 1100, 25, 25, 800, 1050, 100, 100 };
// The same at 600.
constexpr map::PrintDevice kFine = { 5100, 6600, 150, 150, 4800, 6300, 600, 600 };

// The printable area of a printer as a picture.
struct Sheet {
    explicit Sheet(const map::PrintDevice& device) : width(device.width), height(device.height) {
        const platform::PixelBitmap made = platform::MakePixelBitmap(width, height);
        bitmap = made.handle;
        pixels = made.pixels;
        dc = CreateCompatibleDC(nullptr);
        before = SelectObject(dc, bitmap);
        PatBlt(dc, 0, 0, width, height, WHITENESS);
    }
    ~Sheet() {
        SelectObject(dc, before);
        DeleteDC(dc);
        DeleteObject(bitmap);
    }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    COLORREF At(int x, int y) const {
        const uint32_t pixel = pixels[y * width + x];
        return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
    }
    // What is not white.
    platform::PixelRect Ink() const {
        platform::PixelRect ink = { width, height, 0, 0 };
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                if (At(x, y) == kWhite) continue;
                ink = { std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1),
                        std::max(ink.bottom, y + 1) };
            }
        }
        return ink;
    }
    int CountOf(COLORREF colour, const platform::PixelRect& box) const {
        int count = 0;
        for (int y = box.top; y < box.bottom; ++y) {
            for (int x = box.left; x < box.right; ++x) count += At(x, y) == colour;
        }
        return count;
    }

    int width, height;
    HDC dc;
    HBITMAP bitmap;
    HGDIOBJ before;
    const uint32_t* pixels;
};

// What the tests ask of the records of a metafile.
struct Records {
    std::vector<RECTL> ellipses;
    std::vector<UINT> penWidths;
    std::vector<std::wstring> texts;
    int clips = 0;
};

int CALLBACK Note(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM data) {
    Records& records = *reinterpret_cast<Records*>(data);
    switch (record->iType) {
    case EMR_ELLIPSE: records.ellipses.push_back(reinterpret_cast<const EMRELLIPSE*>(record)->rclBox); break;
    case EMR_CREATEPEN: {
        const LOGPEN& pen = reinterpret_cast<const EMRCREATEPEN*>(record)->lopn;
        if (pen.lopnStyle != PS_NULL)
            records.penWidths.push_back(static_cast<UINT>(std::max<LONG>(1, pen.lopnWidth.x)));
        break;
    }
    case EMR_SELECTCLIPPATH: ++records.clips; break;
    case EMR_EXTTEXTOUTW: {
        const EMRTEXT& text = reinterpret_cast<const EMREXTTEXTOUTW*>(record)->emrtext;
        const char* start = reinterpret_cast<const char*>(record) + text.offString;
        records.texts.emplace_back(reinterpret_cast<const wchar_t*>(start), text.nChars);
        break;
    }
    default: break;
    }
    return 1;
}

struct PrintPageWinTest : MapFixture {
    void SetUp() override {
        MapFixture::SetUp();
        app::settings.metric = true;
        Open();
        map::print = {};
        map::print.paper = map::UsualPaper(false);
        map::FitPrintScale(&map::print);
    }
    void TearDown() override {
        platform::FreeGdiFonts();
        map::print = {};
        MapFixture::TearDown();
    }
    static void UseScale(double scale) {
        map::print.fitPage = false;
        map::print.printScale = scale;
    }
    static Records MetafileOf(const map::PrintDevice& device) {
        Records records;
        const HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
        app::DrawPrintPage(dc, device);
        const HENHMETAFILE metafile = CloseEnhMetaFile(dc);
        EnumEnhMetaFile(nullptr, metafile, Note, &records, nullptr);
        DeleteEnhMetaFile(metafile);
        return records;
    }
};

}  // namespace

TEST_F(PrintPageWinTest, NothingIsDrawnOutsideTheMargins) {
    UseScale(20);  // the view is far larger than the page
    build::Link(build::Node({ -900, -700 }), build::Node({ 900, 700 }));
    const Sheet sheet(kCoarse);
    app::DrawPrintPage(sheet.dc, kCoarse);
    EXPECT_EQ(sheet.Ink(), (platform::PixelRect{ 75, 75, 725, 975 })) << "an inch on each side";
}

TEST_F(PrintPageWinTest, TheFittedViewLiesInTheMiddleOfTheMargins) {
    const Sheet sheet(kCoarse);
    app::DrawPrintPage(sheet.dc, kCoarse);
    const platform::PixelRect ink = sheet.Ink();
    EXPECT_EQ(ink.left, 75);
    EXPECT_EQ(ink.right, 725);
    EXPECT_NEAR(ink.bottom - ink.top, 650 * 3 / 4, 1);
    EXPECT_NEAR(ink.top + ink.bottom, 1050, 1);
}

TEST_F(PrintPageWinTest, TheBorderIsOneBlackPixelAtTheEdgeOfTheMap) {
    UseScale(20);
    map::print.printBorder = true;
    const Sheet sheet(kCoarse);
    app::DrawPrintPage(sheet.dc, kCoarse);
    EXPECT_EQ(sheet.Ink(), (platform::PixelRect{ 75, 75, 725, 975 }));
    EXPECT_EQ(sheet.CountOf(0, { 75, 75, 725, 76 }), 650);
    EXPECT_EQ(sheet.CountOf(0, { 75, 974, 725, 975 }), 650);
    EXPECT_EQ(sheet.CountOf(0, { 75, 75, 76, 975 }), 900);
    EXPECT_EQ(sheet.CountOf(0, { 724, 75, 725, 975 }), 900);
    EXPECT_EQ(sheet.CountOf(0, { 76, 76, 90, 90 }), 0) << "no thicker, no fill";
}

TEST_F(PrintPageWinTest, TheTitleStandsInTheUpperLeftCorner) {
    const Sheet without(kCoarse), with(kCoarse);
    app::DrawPrintPage(without.dc, kCoarse);
    map::print.printTitle = true;
    app::DrawPrintPage(with.dc, kCoarse);
    platform::PixelRect changed = { 800, 1050, 0, 0 };
    for (int y = 0; y < 1050; ++y) {
        for (int x = 0; x < 800; ++x) {
            if (with.At(x, y) == without.At(x, y)) continue;
            changed = { std::min(changed.left, x), std::min(changed.top, y), std::max(changed.right, x + 1),
                        std::max(changed.bottom, y + 1) };
        }
    }
    const platform::PixelRect map = without.Ink();
    EXPECT_NEAR(changed.left, map.left + 8, 2);
    EXPECT_GE(changed.top, map.top + 5);
    EXPECT_LE(changed.bottom, map.top + 5 + 20) << "ten points are 14 pixels";
    EXPECT_GT(changed.right, changed.left + 80);
    const std::vector<std::wstring> texts = MetafileOf(kFine).texts;
    EXPECT_NE(std::find(texts.begin(), texts.end(), L"KTST  ,  Scale: 246 m/in"), texts.end());
}

TEST_F(PrintPageWinTest, AThousandMetresAreWhatTheScaleSays) {
    UseScale(200);
    for (int i = 0; i < 10; ++i) {
        build::Node({ i * 40.0 - 300, -500 + i * 0.033 });
        build::Node({ i * 40.0 - 300, 500 + i * 0.033 });
    }
    Records records = MetafileOf(kFine);
    std::erase_if(records.ellipses, [](const RECTL& e) { return e.right - e.left > 45; });  // the reference point
    ASSERT_EQ(records.ellipses.size(), 20u);
    double sum = 0;
    for (size_t i = 0; i < records.ellipses.size(); i += 2) {
        const RECTL &south = records.ellipses[i], &north = records.ellipses[i + 1];
        EXPECT_NEAR(south.left, north.left, 1);
        EXPECT_NEAR(south.top - north.top, 3000, 1) << "five inches of 600 pixels; each end is a whole pixel";
        sum += south.top - north.top;
    }
    EXPECT_NEAR(sum / 10, 3000, 0.5);
    EXPECT_GE(records.clips, 1);
}

TEST_F(PrintPageWinTest, LinesAreTenFeetWideWithinOneToThreePixels) {
    build::Link(build::Node(), build::Node({ 100, 0 }));
    map::print.printBorder = true;
    const auto thinnest = [](double scale) {
        UseScale(scale);
        Records records = MetafileOf(kFine);
        EXPECT_FALSE(records.penWidths.empty());
        EXPECT_EQ(records.penWidths.back(), 1u) << "the border's";
        records.penWidths.pop_back();
        return *std::min_element(records.penWidths.begin(), records.penWidths.end());
    };
    EXPECT_EQ(thinnest(200), 3u);   // 3 pixels to the metre
    EXPECT_EQ(thinnest(1000), 2u);  // 0.6
    EXPECT_EQ(thinnest(5000), 1u);
}

TEST_F(PrintPageWinTest, DrawingPagesKeepsNoObjectOfTheSystem) {
    build::Link(build::Node(), build::Node({ 100, 0 }));
    const Sheet sheet(kCoarse);
    app::DrawPrintPage(sheet.dc, kCoarse);
    const int before = GdiObjects();
    EXPECT_GT(before, 0);
    for (int i = 0; i < 20; ++i) app::DrawPrintPage(sheet.dc, kCoarse);
    EXPECT_LE(GdiObjects(), before);
    POINT origin{};
    GetViewportOrgEx(sheet.dc, &origin);
    EXPECT_EQ(origin.x, 0);
    EXPECT_EQ(origin.y, 0);
}
