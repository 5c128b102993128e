// TestPrinter.h - a PostScript printer for the tests: its port is a file, which each document replaces. It is the default
// printer for as long as the object lives.
#pragma once

#include <windows.h>

#include <winspool.h>

#include <cstdio>
#include <string>

#include "UiFiles.h"

namespace ui {

// A sheet of A4 with a quarter of an inch that cannot be printed on.
constexpr char kPrinterDescription[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TARVO.PPD"
*Product: "(Tarvo Test)"
*PSVersion: "(3010.000) 0"
*Manufacturer: "Tarvo"
*ModelName: "Tarvo Test Printer"
*ShortNickName: "Tarvo Test"
*NickName: "Tarvo Test"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*Throughput: "1"
*LandscapeOrientation: Plus90
*TTRasterizer: Type42
*VariablePaperSize: False
*DefaultResolution: 600dpi
*OpenUI *PageSize/Page Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageSize Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Page Region: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageRegion Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 18 577 824"
*ImageableArea Letter/Letter: "18 18 594 774"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension Letter/Letter: "612 792"
*DefaultFont: Courier
*Font Courier: Standard "(002.004S)" Standard ROM
)ppd";

class TestPrinter {
public:
    explicit TestPrinter(const std::wstring& folder) : port(folder + L"\\page.ps") {
        std::wstring description = folder + L"\\tarvo.ppd", driver = L"wineps.drv", type = L"RAW";
        DeleteFileW(port.c_str());
        if (!Write(description)) return;
        DRIVER_INFO_3W info{};
        info.cVersion = 3;
        info.pName = name;
        info.pEnvironment = environment;
        info.pDriverPath = info.pConfigFile = driver.data();
        info.pDataFile = description.data();
        info.pDefaultDataType = type.data();
        if (!AddPrinterDriverExW(nullptr, 3, reinterpret_cast<BYTE*>(&info),
                                 APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY))
            return;
        PRINTER_INFO_2W printer{};
        printer.pPrinterName = printer.pDriverName = name;
        printer.pPortName = port.data();
        printer.pPrintProcessor = processor;
        printer.pDatatype = type.data();
        printer.pParameters = printer.pComment = printer.pLocation = printer.pSepFile = printer.pShareName = none;
        handle = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
        if (handle) SetDefaultPrinterW(name);
    }
    ~TestPrinter() {
        if (!handle) return;
        DeletePrinter(handle);
        ClosePrinter(handle);
    }
    TestPrinter(const TestPrinter&) = delete;
    TestPrinter& operator=(const TestPrinter&) = delete;

    bool IsThere() const { return handle != nullptr; }

    // What has arrived so far; complete when it ends with its last line.
    std::string Document() const { return BytesOf(port); }
    void Forget() { DeleteFileW(port.c_str()); }

private:
    static bool Write(const std::wstring& path) {
        FILE* file = _wfopen(path.c_str(), L"wb");
        if (!file) return false;
        const bool written = fputs(kPrinterDescription, file) >= 0;
        return (fclose(file) == 0) && written;
    }

    std::wstring port;
    wchar_t name[32] = L"Tarvo Test", environment[16] = L"Windows x64", processor[16] = L"WinPrint", none[1] = L"";
    HANDLE handle = nullptr;
};

}  // namespace ui
