#pragma once

#include "HostedSifter.h"
#include "win32/UniqueGdi.h"

#include <olectl.h>
#include <string>

namespace sifter {

// Every member of the banner's that can be read as a value.
inline Strings BannerFieldsOf(const ComRef<IDispatch>& control) {
  Strings fields;
  for (const wchar_t* name :
       {L"Enabled", L"Active", L"ListOfTags", L"Filter", L"FilterInPlainEnglish",
        L"ItemDescription", L"FilterMessage", L"ColumnsToExclude", L"FilterCaption",
        L"ExtraButtonVisible", L"ExtraButtonCaption", L"InitialSettings", L"BannerButtonVisible"})
    fields.push_back(FromWide(name).ToUtf8() + '=' + Shown(Get(control, name)));
  return fields;
}

inline Strings DefaultBannerFields() {
  return {"Enabled=True",
          "Active=False",
          "ListOfTags=\"\"",
          "Filter=\"\"",
          "FilterInPlainEnglish=\"\"",
          "ItemDescription=\"Items\"",
          "FilterMessage=\"Please enter criteria to apply to your listview\"",
          "ColumnsToExclude=\"\"",
          "FilterCaption=\"Tarvenn Software Row Sifter\"",
          "ExtraButtonVisible=False",
          "ExtraButtonCaption=\"\"",
          "InitialSettings=\"\"",
          "BannerButtonVisible=False"};
}

// A picture of a host's own: a bitmap of this size in one colour.
inline ComRef<IPictureDisp> NewPicture(int width = 8, int height = 8,
                                       COLORREF colour = RGB(255, 0, 0)) {
  const WindowDc screen(nullptr);
  const UniqueMemoryDc memory(CreateCompatibleDC(screen.Get()));
  PICTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.picType = PICTYPE_BITMAP;
  description.bmp.hbitmap = CreateCompatibleBitmap(screen.Get(), width, height);
  {
    const SelectedObject selected(memory.Get(), description.bmp.hbitmap);
    const RECT all{0, 0, width, height};
    const UniqueBrush brush(CreateSolidBrush(colour));
    FillRect(memory.Get(), &all, brush.Get());
  }
  ComRef<IPictureDisp> picture;
  EXPECT_EQ(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, picture.ReceiveVoid()),
            S_OK);
  return picture;
}

inline ComRef<IPictureDisp> PictureOf(const ComRef<IDispatch>& control) {
  return GetObject(control, L"BannerButtonPicture").As<IPictureDisp>(IID_IPictureDisp);
}

// The windows on a banner's own.
class BannerWindows {
 public:
  explicit BannerWindows(HWND banner) {
    EnumChildWindows(banner, Add, reinterpret_cast<LPARAM>(this));
  }

  HWND Filter() const { return buttons_.at(0); }
  HWND Extra() const { return buttons_.at(1); }
  HWND Caption() const { return caption_; }

 private:
  static BOOL CALLBACK Add(HWND window, LPARAM self) {
    auto& windows = *reinterpret_cast<BannerWindows*>(self);
    wchar_t kind[32] = L"";
    GetClassNameW(window, kind, 32);
    if (CompareStringOrdinal(kind, -1, L"Button", -1, TRUE) == CSTR_EQUAL)
      windows.buttons_.push_back(window);
    else if (WindowText(window).View().starts_with(u"Displaying"))
      windows.caption_ = window;
    return TRUE;
  }

  std::vector<HWND> buttons_;  // in the order of the Tab key
  HWND caption_ = nullptr;
};

// The button by which a user has the dialog shown, in the window of a control of this type.
inline HWND FilterButton(const std::wstring& type, HWND control) {
  return type == kBanner ? BannerWindows(control).Filter() : GetWindow(control, GW_CHILD);
}

// A form with a list view of five trees and a banner above it.
class HostedBanner : public HostedControl {
 protected:
  HostedBanner() : HostedControl(kBanner) {}

  BannerWindows Windows() const { return BannerWindows(container.ControlWindow()); }
  std::string Caption() const { return WindowText(Windows().Caption()).ToUtf8(); }
  Value Active() const { return Get(control, L"Active"); }

  void WaitForCaption(const std::string& caption) {
    user.Does([&] { user.WaitsFor([&] { return Caption() == caption; }); });
    user.PumpUntilDone();
  }
};

}  // namespace sifter
