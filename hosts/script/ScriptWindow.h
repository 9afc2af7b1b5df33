#pragma once

#include "container/HostedControl.h"
#include "container/TopWindow.h"

#include <memory>
#include <string>
#include <vector>
#include <windows.h>

namespace hosts {

// The window that a script has: a list view with its object, and controls in a strip above it. It
// is there from the start and comes up when the script shows it.
class ScriptWindow final : private TopWindow {
 public:
  explicit ScriptWindow(const std::wstring& caption);
  ~ScriptWindow();

  using TopWindow::Window;
  IDispatch* List() const { return list_.Get(); }

  // A control right of those that are there already. Measures in twips; no width at all is what is
  // left of the window's.
  IDispatch* AddControl(const std::wstring& progId, int width, int height, EventHandler handler);

  void Show();
  void Close();
  // Handles messages until the window is closed; at once if it isn't shown.
  void RunWhileShown();

 private:
  struct Entry {
    int width;  // twips
    int height;
    std::unique_ptr<HostedControl> control;
  };

  LRESULT Handle(UINT message, WPARAM wide, LPARAM wider) override;
  void Layout();
  bool TranslateKey(MSG& message);
  bool MoveFocus(const MSG& key);

  HWND listView_ = nullptr;
  ComRef<IDispatch> list_;
  std::unique_ptr<ControlFrame> frame_;
  std::vector<Entry> controls_;
};

}  // namespace hosts
