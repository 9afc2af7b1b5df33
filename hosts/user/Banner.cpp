#include "user/Banner.h"

#include "user/Screen.h"

namespace hosts {

namespace {

HWND CaptionWindowOf(HWND window) {
  HWND found = nullptr;
  WaitUntil(
      [&] {
        for (const HWND child : ChildrenOf(window))
          if (CaptionOf(child).starts_with(L"Displaying ")) found = child;
        return found != nullptr;
      },
      L"for a count of rows");
  return found;
}

}  // namespace

HWND FilterButtonOf(HWND window) { return WaitForChild(window, L"Button", L"Filter"); }

HWND HostButtonOf(HWND window) { return WaitForChild(window, L"Button", L"Banner button"); }

std::wstring BannerCaptionOf(HWND window) { return CaptionOf(CaptionWindowOf(window)); }

void WaitForBannerCaption(HWND window, const std::wstring& caption,
                          const std::function<void(const std::wstring& caption)>& said) {
  const HWND banner = CaptionWindowOf(window);
  std::wstring last;
  WaitUntil(
      [&] {
        const std::wstring now = CaptionOf(banner);
        if (now != last && said) said(now);
        last = now;
        return now == caption;
      },
      L"for \"" + caption + L'"');
}

}  // namespace hosts
