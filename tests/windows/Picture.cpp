#include "Picture.h"

#include "win32/ComRef.h"
#include "win32/UniqueGdi.h"

#include <gtest/gtest.h>

#include <wincodec.h>

namespace sifter {

namespace {

struct Bitmap {
  int width, height;
  std::vector<COLORREF> pixels;  // 0x00RRGGBB, as bitmaps have them
};

Bitmap Capture(HWND window, const RECT& area) {
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  // What the window has on the screen; nothing else stands before it there.
  const WindowDc screen(nullptr);
  const UniqueMemoryDc memory(CreateCompatibleDC(screen.Get()));
  const UniqueBitmap bitmap(CreateCompatibleBitmap(screen.Get(), width, height));
  POINT origin{area.left, area.top};
  RECT box;
  GetWindowRect(window, &box);
  {
    const SelectedObject selected(memory.Get(), bitmap.Get());
    BitBlt(memory.Get(), 0, 0, width, height, screen.Get(), box.left + origin.x, box.top + origin.y,
           SRCCOPY);
  }
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  Bitmap captured{
      width, height,
      std::vector<COLORREF>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))};
  GetDIBits(memory.Get(), bitmap.Get(), 0, static_cast<UINT>(height), captured.pixels.data(), &info,
            DIB_RGB_COLORS);
  for (COLORREF& pixel : captured.pixels) pixel &= 0x00FFFFFF;
  return captured;
}

// pictures/<name>.png beside the folder that this program is in.
std::wstring FileFor(const std::string& name) {
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring folder(program);
  folder.erase(folder.find_last_of(L'\\'));
  folder.erase(folder.find_last_of(L'\\'));
  folder += L"\\pictures";
  CreateDirectoryW(folder.c_str(), nullptr);
  return folder + L'\\' + std::wstring(name.begin(), name.end()) + L".png";
}

HRESULT Write(Bitmap& bitmap, const std::wstring& file) {
  ComRef<IWICImagingFactory> factory;
  HRESULT result =
      CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                       __uuidof(IWICImagingFactory), reinterpret_cast<void**>(factory.Receive()));
  ComRef<IWICStream> stream;
  if (SUCCEEDED(result)) result = factory->CreateStream(stream.Receive());
  if (SUCCEEDED(result)) result = stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE);
  ComRef<IWICBitmapEncoder> encoder;
  if (SUCCEEDED(result))
    result = factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.Receive());
  if (SUCCEEDED(result)) result = encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache);
  ComRef<IWICBitmapFrameEncode> frame;
  if (SUCCEEDED(result)) result = encoder->CreateNewFrame(frame.Receive(), nullptr);
  if (SUCCEEDED(result)) result = frame->Initialize(nullptr);
  const auto width = static_cast<UINT>(bitmap.width);
  const auto height = static_cast<UINT>(bitmap.height);
  if (SUCCEEDED(result)) result = frame->SetSize(width, height);
  GUID format = GUID_WICPixelFormat32bppBGR;
  if (SUCCEEDED(result)) result = frame->SetPixelFormat(&format);
  if (SUCCEEDED(result))
    result = frame->WritePixels(height, width * 4, width * height * 4,
                                reinterpret_cast<BYTE*>(bitmap.pixels.data()));
  if (SUCCEEDED(result)) result = frame->Commit();
  if (SUCCEEDED(result)) result = encoder->Commit();
  return result;
}

}  // namespace

void SavePicture(HWND window, const std::string& name) {
  UpdateWindow(window);
  RECT box;
  GetWindowRect(window, &box);
  Bitmap bitmap = Capture(window, {0, 0, box.right - box.left, box.bottom - box.top});
  ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
  EXPECT_EQ(Write(bitmap, FileFor(name)), S_OK) << name;
  CoUninitialize();
}

std::vector<COLORREF> Pixels(HWND window, const RECT& area) {
  UpdateWindow(window);
  return Capture(window, area).pixels;
}

}  // namespace sifter
