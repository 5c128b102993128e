// PngWin.cpp - see PngWin.h.
//
// The codec takes the bytes of all pixels in one call and counts them in 32 bits, so a larger picture goes in pieces.
#include "platform/PngWin.h"

#include <windows.h>

#include <algorithm>
#include <new>
#include <wincodec.h>

namespace platform {

namespace {

constexpr uint32_t kMostBytesAtOnce = 1u << 26;

// Lets go of what it holds at the end of its scope.
template <class Interface>
struct Held {
    Interface* it = nullptr;
    Held() = default;
    ~Held() {
        if (it) it->Release();
    }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
};

bool OpenFrame(IWICImagingFactory* factory, IStream* stream, IWICBitmapEncoder** encoder,
               IWICBitmapFrameEncode** frame) {
    return SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder)) &&
           SUCCEEDED((*encoder)->Initialize(stream, WICBitmapEncoderNoCache)) &&
           SUCCEEDED((*encoder)->CreateNewFrame(frame, nullptr)) && SUCCEEDED((*frame)->Initialize(nullptr));
}

bool IsFormatTaken(IWICBitmapFrameEncode* frame) {
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    return SUCCEEDED(frame->SetPixelFormat(&format)) && IsEqualGUID(format, GUID_WICPixelFormat24bppBGR);
}

// Without the unused byte of each pixel, which the codec would take for its opacity.
std::vector<uint8_t> ThreeBytesEach(std::span<const uint32_t> pixels) {
    std::vector<uint8_t> bytes;
    bytes.reserve(pixels.size() * 3);
    for (const uint32_t pixel : pixels) {
        for (const int shift : { 0, 8, 16 }) bytes.push_back(static_cast<uint8_t>(pixel >> shift));
    }
    return bytes;
}

bool WriteRows(IWICBitmapFrameEncode* frame, std::span<const uint32_t> pixels, uint32_t width) {
    const size_t rows = std::max(1u, kMostBytesAtOnce / (3 * width));
    while (!pixels.empty()) {
        const std::span part = pixels.first(std::min(pixels.size(), rows * width));
        std::vector<uint8_t> bytes = ThreeBytesEach(part);
        const auto count = static_cast<UINT>(part.size() / width), size = static_cast<UINT>(bytes.size());
        if (FAILED(frame->WritePixels(count, 3 * width, size, bytes.data()))) return false;
        pixels = pixels.subspan(part.size());
    }
    return true;
}

bool ReadBack(IStream* stream, std::vector<uint8_t>* bytes) {
    STATSTG about{};
    if (FAILED(stream->Stat(&about, STATFLAG_NONAME)) || FAILED(stream->Seek({}, STREAM_SEEK_SET, nullptr)))
        return false;
    bytes->resize(static_cast<size_t>(about.cbSize.QuadPart));
    ULONG got = 0;
    return SUCCEEDED(stream->Read(bytes->data(), static_cast<ULONG>(bytes->size()), &got)) && got == bytes->size();
}

bool Encode(std::span<const uint32_t> pixels, uint32_t width, uint32_t height, std::vector<uint8_t>* bytes) {
    Held<IWICImagingFactory> factory;
    Held<IStream> stream;
    Held<IWICBitmapEncoder> encoder;
    Held<IWICBitmapFrameEncode> frame;
    if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                reinterpret_cast<void**>(&factory.it))))
        return false;
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream.it))) return false;
    return OpenFrame(factory.it, stream.it, &encoder.it, &frame.it) && SUCCEEDED(frame.it->SetSize(width, height)) &&
           IsFormatTaken(frame.it) && WriteRows(frame.it, pixels, width) && SUCCEEDED(frame.it->Commit()) &&
           SUCCEEDED(encoder.it->Commit()) && ReadBack(stream.it, bytes);
}

}  // namespace

// A picture may ask for more memory than everything else together; for want of it the airport must not be lost.
bool PngFile(std::span<const uint32_t> pixels, uint32_t width, uint32_t height, std::vector<uint8_t>* bytes) {
    try {
        return Encode(pixels, width, height, bytes);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

}  // namespace platform
