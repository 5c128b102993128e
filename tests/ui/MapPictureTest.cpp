// MapPictureTest.cpp - saving the map as a picture: PNG files at four sizes, an enhanced metafile, and what goes wrong.
#include <windows.h>

#include <cstdlib>
#include <wincodec.h>

#include "ProgramParts.h"
#include "Resource.h"
#include "UiFiles.h"
#include "UiHarness.h"

namespace ui {

constexpr wchar_t kPictureFolder[] = L"C:\\UiTest\\Pictures";
constexpr wchar_t kPictureTitle[] = L"Save Map Picture";
constexpr int kKindBox = 1136;  // cmb1 of the common dialogs
enum Kind { kOnce, kTwice, kThrice, kFourTimes, kMetafile };

// The picture of the file by the system's own decoder; empty when it is none.
Picture ReadPng(const std::wstring& path) {
    Picture picture;
    IWICImagingFactory* factory = nullptr;
    IWICBitmapDecoder* decoder = nullptr;
    IWICBitmapFrameDecode* frame = nullptr;
    IWICFormatConverter* converter = nullptr;
    const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    UINT width = 0, height = 0;
    if (SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                   reinterpret_cast<void**>(&factory))) &&
        SUCCEEDED(factory->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                                     WICDecodeMetadataCacheOnDemand, &decoder)) &&
        SUCCEEDED(decoder->GetFrame(0, &frame)) && SUCCEEDED(factory->CreateFormatConverter(&converter)) &&
        SUCCEEDED(converter->Initialize(frame, GUID_WICPixelFormat32bppBGR, WICBitmapDitherTypeNone, nullptr, 0,
                                        WICBitmapPaletteTypeCustom)) &&
        SUCCEEDED(converter->GetSize(&width, &height))) {
        picture.width = static_cast<int>(width);
        picture.height = static_cast<int>(height);
        picture.pixels.resize(size_t{ width } * height);
        converter->CopyPixels(nullptr, width * 4, width * height * 4, reinterpret_cast<BYTE*>(picture.pixels.data()));
        for (uint32_t& pixel : picture.pixels) pixel &= 0xFFFFFF;
    }
    if (converter) converter->Release();
    if (frame) frame->Release();
    if (decoder) decoder->Release();
    if (factory) factory->Release();
    if (SUCCEEDED(com)) CoUninitialize();
    return picture;
}

// The metafile played onto so many pixels.
Picture PlayMetafile(HENHMETAFILE metafile, int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(dc, bitmap);
    const RECT all = { 0, 0, width, height };
    PlayEnhMetaFile(dc, metafile, &all);
    GdiFlush();
    const uint32_t* first = static_cast<const uint32_t*>(pixels);
    Picture picture = { width, height, { first, first + width * height } };
    for (uint32_t& pixel : picture.pixels) pixel &= 0xFFFFFF;
    SelectObject(dc, before);
    DeleteDC(dc);
    DeleteObject(bitmap);
    return picture;
}

class MapPictureTest : public UiTest {
protected:
    void SetUp() override {
        CreateDirectoryW(kPictureFolder, nullptr);
        for (const wchar_t* name : { L"map.png", L"map.emf" }) DeleteFileW(In(name).c_str());
    }
    static std::wstring In(const wchar_t* name) { return std::wstring(kPictureFolder) + L"\\" + name; }

    // Without the grid: its labels stand at the edge of what can be seen, which in a picture is not the toolbars'.
    void StartWithMap() {
        ASSERT_NO_FATAL_FAILURE(StartWithSample("hub"));
        Command(IDM_GRID);
        RECT client{};
        GetClientRect(mainWindow, &client);
        width = client.right;
        height = client.bottom;
    }
    // Leaves the answer to what comes up then to the test.
    HWND Answer(const std::wstring& path, Kind kind) {
        PostCommand(mainWindow, IDM_SAVE_PICTURE);
        const HWND dialog = Dialog(kPictureTitle);
        HWND kinds = nullptr;
        EXPECT_TRUE(WaitUntil([&] {
            kinds = ChildWithId(dialog, kKindBox);
            return kinds && SendMessageW(kinds, CB_GETCOUNT, 0, 0) == kMetafile + 1;
        })) << "not five kinds";
        PickInCombo(kinds, kind);
        EXPECT_TRUE(AnswerFileDialog(dialog, path));
        return dialog;
    }
    void Save(const std::wstring& path, Kind kind) {
        const HWND dialog = Answer(path, kind);
        ASSERT_TRUE(WaitUntilGone(dialog));
        ASSERT_TRUE(SettlePosted(agent));
    }
    // How many of the pixels of the map on the screen are not those of the picture, by the colour of a pixel in its middle
    // and those around it; hundredths.
    double Difference(const Picture& screen, const Picture& picture, int times, int reach) const {
        const RECT area = MapArea(mainWindow);
        int different = 0, all = 0;
        for (int y = area.top + 1; y < area.bottom - 1; ++y) {
            for (int x = area.left + 1; x < area.right - 1; ++x, ++all)
                different += !IsNear(picture, x * times, y * times, times + reach, reach, PixelAt(screen, x, y));
        }
        return 100.0 * different / all;
    }
    static bool IsNear(const Picture& picture, int left, int top, int size, int reach, uint32_t colour) {
        for (int y = top - reach; y < top + size; ++y) {
            for (int x = left - reach; x < left + size; ++x) {
                if (PixelAt(picture, x, y) == colour) return true;
            }
        }
        return false;
    }

    int width = 0, height = 0;
};

TEST_F(MapPictureTest, OnceTheSizeIsWhatTheScreenShows) {
    StartWithMap();
    const Picture screen = GrabMap(mainWindow);
    Save(In(L"map.png"), kOnce);
    const Picture picture = ReadPng(In(L"map.png"));
    ASSERT_EQ(picture.width, width);
    ASSERT_EQ(picture.height, height);
    EXPECT_EQ(Difference(screen, picture, 1, 0), 0);
    EXPECT_EQ(GrabMap(mainWindow).pixels, screen.pixels) << "the screen is as before";
    EXPECT_EQ(CloseProgram(), 0u) << "a picture is no change";
}

TEST_F(MapPictureTest, FourTimesTheSizeShowsTheSameMapFiner) {
    StartWithMap();
    const Picture screen = GrabMap(mainWindow);
    Save(In(L"map"), kFourTimes);  // the extension is added
    const Picture picture = ReadPng(In(L"map.png"));
    ASSERT_EQ(picture.width, 4 * width);
    ASSERT_EQ(picture.height, 4 * height);
    EXPECT_LT(Difference(screen, picture, 4, 2), 1);
    EXPECT_EQ(GrabMap(mainWindow).pixels, screen.pixels);
}

TEST_F(MapPictureTest, AMetafileHoldsTheMapAsLargeAsOnTheScreen) {
    StartWithMap();
    const Picture screen = GrabMap(mainWindow);
    Save(In(L"map"), kMetafile);
    const HENHMETAFILE metafile = GetEnhMetaFileW(In(L"map.emf").c_str());
    ASSERT_NE(metafile, nullptr);
    ENHMETAHEADER header{};
    GetEnhMetaFileHeader(metafile, sizeof header, &header);
    const HDC dc = GetDC(nullptr);
    const double perPixel = 100.0 * GetDeviceCaps(dc, HORZSIZE) / GetDeviceCaps(dc, HORZRES);
    ReleaseDC(nullptr, dc);
    EXPECT_NEAR(header.rclFrame.right - header.rclFrame.left, width * perPixel, 2 * perPixel);
    EXPECT_GT(header.nRecords, 1000u);
    const Picture picture = PlayMetafile(metafile, width, height);
    DeleteEnhMetaFile(metafile);
    EXPECT_LT(Difference(screen, picture, 1, 1), 3) << "it is finer, and a playback is up to a pixel off";
}

TEST_F(MapPictureTest, AnExistingPictureIsReplacedOnlyWithConsent) {
    FILE* file = _wfopen(In(L"map.png").c_str(), L"wb");
    ASSERT_NE(file, nullptr);
    fputs("old", file);
    fclose(file);
    StartWithMap();
    const HWND dialog = Answer(In(L"map"), kTwice);
    const HWND question = DialogOtherThan(dialog);
    ASSERT_NE(question, nullptr);
    CloseDialog(question, IDNO);
    ASSERT_TRUE(SettlePosted(agent));
    EXPECT_EQ(BytesOf(In(L"map.png")), "old");
}

TEST_F(MapPictureTest, AFileHeldByAnotherProgramStaysAndTheUserIsTold) {
    StartWithMap();
    Save(In(L"map.png"), kOnce);
    const std::string before = BytesOf(In(L"map.png"));
    ASSERT_GT(before.size(), 1000u);
    const HANDLE held = CreateFileW(In(L"map.png").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const HWND dialog = Answer(In(L"map.png"), kTwice);
    const HWND question = DialogOtherThan(dialog);  // to replace it?
    ASSERT_NE(question, nullptr);
    PressButton(question, IDYES);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text, L"ERROR: Unable to create picture file");
    CloseHandle(held);
    UiTest::Answer(box, IDOK);
    EXPECT_EQ(BytesOf(In(L"map.png")), before);
    EXPECT_TRUE(IsWindowEnabled(mainWindow));
}

TEST_F(MapPictureTest, CancelWritesNothing) {
    StartWithMap();
    PostCommand(mainWindow, IDM_SAVE_PICTURE);
    const HWND dialog = Dialog(kPictureTitle);
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_TRUE(SettlePosted(agent));
    EXPECT_EQ(GetFileAttributesW(In(L"map.png").c_str()), INVALID_FILE_ATTRIBUTES);
}

}  // namespace ui
