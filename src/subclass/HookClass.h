#pragma once

#include "about/frmAbout.h"
#include "subclass/OneBasedArray.h"
#include "subclass/WinProc.h"

#include <cstdint>
#include <functional>

namespace sifter {

// Watches the messages of one window: a small invisible control that the filter controls carry, to
// see rows come and go in the host's list. Numbers are 32-bit, as its members always were; of
// parameters that are wider in a 64-bit process its event and its method see the lower half.
class HookClass {
 public:
  // A size in twips.
  struct Extent {
    double width;
    double height;

    friend bool operator==(const Extent&, const Extent&) = default;
  };

  // The image by which it can be seen on a design surface: 32 by 32 pixels.
  static constexpr Extent kIconImage = {480, 480};

  // `winProc` must outlive the object, and so must what the about box needs.
  HookClass(WinProc& winProc, const AboutServices& about);
  ~HookClass();  // lets go of its window
  HookClass(const HookClass&) = delete;
  HookClass& operator=(const HookClass&) = delete;

  // Whether the event is raised for a message; for none at first. At most 32767 messages: one more
  // is error 6, and changes nothing.
  bool Messages(std::uint32_t message) const;
  void SetMessages(std::uint32_t message, bool value);

  // The window whose messages are watched; 0, as at first, for none. The window is the host's.
  //
  // Writing the handle that it holds already does nothing, even when the window isn't watched any
  // more (see WinProc): write 0 first, then the handle. On error 6 it holds the new handle, but
  // watches nothing.
  std::int32_t hWnd() const { return hWnd_; }
  void SethWnd(std::int32_t window);

  // What the window's own procedure makes of a message, without any event. 0 when hWnd is 0 or the
  // window isn't watched any more.
  std::int32_t CallWndProc(std::uint32_t message, std::int32_t wParam, std::int32_t lParam);

  // Shows the library's about box until the user closes it.
  void AboutBox();

  // The window is about to deal with one of the messages asked for. It will in any case, and
  // whatever `result` is set to goes nowhere. The handler may change anything about this object
  // and others, and end it.
  std::function<void(std::uint32_t message, std::int32_t wParam, std::int32_t lParam,
                     std::int32_t& result)>
      WndProc;

  // The size that it takes when a design surface asks it to take another one: its icon image's.
  static constexpr Extent SizeFor(Extent) { return kIconImage; }

  // Raises the event; for WinProc.
  void RaiseWndProc(std::uint32_t message, std::int32_t wParam, std::int32_t lParam) const;

 private:
  WinProc& winProc_;
  AboutServices about_;
  OneBasedArray<std::uint32_t> messages_;
  std::int32_t hWnd_ = 0;
};

}  // namespace sifter
