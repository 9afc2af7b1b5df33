#include "win32/FormWindow.h"

#include "base/RuntimeError.h"
#include "win32/FormOrder.h"
#include "win32/TextBoxWindow.h"
#include "win32/ThisModule.h"
#include "win32/WideText.h"
#include "win32/WindowEntry.h"

#include <commctrl.h>
#include <utility>

namespace sifter {

namespace {

constexpr UINT kComplete = WM_APP;
constexpr wchar_t kWindowClass[] = L"RowSifterForm";
constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_3DLOOK | WS_CLIPCHILDREN;
constexpr DWORD kExtendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

void RegisterWindowClass(WNDPROC procedure) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = ThisModule();
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.lpszClassName = kWindowClass;
  RegisterClassExW(&windowClass);  // fails harmlessly when it is registered already
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);
}

}  // namespace

void FormWindow::ForgetWindowClass() noexcept { UnregisterClassW(kWindowClass, ThisModule()); }

FormWindow::FormWindow(Form& form) : form_(form), measures_(nullptr) {
  RegisterWindowClass(Procedure);
  CreateWindowExW(kExtendedStyle, kWindowClass, Wide(form_.Caption()).c_str(), kStyle, 0, 0, 0, 0,
                  nullptr, nullptr, ThisModule(), this);
  if (window_ == nullptr) throw RuntimeError(ErrorNumber::kOutOfMemory);
  measures_ = FormMeasures(window_);
  for (Control* control : form_.Controls()) MakeControl(*control);
  form_.Watch(this);
  form_.Changed = [this] {
    SetWindowTextW(window_, Wide(form_.Caption()).c_str());
    if (shown_) Resize();
  };
}

FormWindow::~FormWindow() {
  form_.Watch(nullptr);
  form_.Changed = nullptr;
  if (shown_) Hide();
  // A box inside a picker is destroyed with it, so the pickers go last.
  std::erase_if(controls_, [](const auto& entry) { return entry.first->Container() != nullptr; });
  controls_.clear();
  if (window_ == nullptr) return;
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
}

void FormWindow::MakeControl(Control& control) {
  if (std::unique_ptr<ControlWindow> window = ControlWindow::For(*this, control)) {
    window->Mirror();
    EnableWindow(window->Handle(), control.Enabled());
    controls_.emplace(&control, std::move(window));
  }
}

// The control isn't whole yet; its window is made when the form is shown, or, when it is, with the
// next message.
void FormWindow::OnControlAdded(Control&) { CompleteSoon(); }

void FormWindow::CompleteSoon() {
  if (shown_ && !std::exchange(completing_, true)) PostMessageW(window_, kComplete, 0, 0);
}

void FormWindow::OnControlRemoved(Control& control) {
  const ControlWindow* window = Find(control);
  if (window != nullptr && window->Handle() == lastFocus_) lastFocus_ = nullptr;
  controls_.erase(&control);
}

void FormWindow::OnPropertyChanged(Control& control, ControlProperty property) {
  ControlWindow* window = Find(control);
  if (window == nullptr) return;
  switch (property) {
    case ControlProperty::kLeft:
    case ControlProperty::kTop:
    case ControlProperty::kWidth:
    case ControlProperty::kHeight:
      if (shown_) Place(*window);
      break;
    case ControlProperty::kContainer:
      if (shown_) Place(*window);
      CompleteSoon();  // its place in the order of the windows is another one
      break;
    case ControlProperty::kVisible:
      if (shown_) ShowOrHide(*window);
      break;
    case ControlProperty::kEnabled:
      EnableWindow(window->Handle(), control.Enabled());
      break;
    default:
      window->Update(property);
  }
}

ControlWindow* FormWindow::Find(const Control& control) const {
  const auto found = controls_.find(&control);
  return found == controls_.end() ? nullptr : found->second.get();
}

ControlWindow* FormWindow::Find(HWND window) const {
  for (; window != nullptr && window != window_; window = GetAncestor(window, GA_PARENT))
    for (const auto& [control, shown] : controls_)
      if (shown->Handle() == window) return shown.get();
  return nullptr;
}

int FormWindow::IdOf(const Control& control) const { return ControlId(form_, control); }

Text FormWindow::AccessibleNameOf(const Control& control) const {
  return AccessibleName(form_, control);
}

void FormWindow::Show(HWND owner) {
  behind_ = owner != nullptr ? owner : GetActiveWindow();
  focusBefore_ = GetFocus();
  SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
  scroll_ = 0;
  Complete();
  Resize();
  shown_ = true;
  if (DpiOf(window_) != measures_.Dpi()) OnNewSurroundings();
  ShowWindow(window_, SW_SHOW);
  if (!shown_) return;  // the host has hidden the form while its own window gave way
  if (form_.ActiveControl() != nullptr) FocusOn(*form_.ActiveControl());
  if (Find(GetFocus()) == nullptr) MoveFocus(false);
}

void FormWindow::Hide() {
  if (!std::exchange(shown_, false)) return;
  // The window behind has to be able to take the activation when the form gives it up, or it would
  // go to another program's window.
  EnableOwners();
  const bool active = GetActiveWindow() == window_;
  ShowWindow(window_, SW_HIDE);
  const HWND behind = std::exchange(behind_, nullptr);
  const HWND focus = std::exchange(focusBefore_, nullptr);
  if (active && behind != nullptr && IsWindow(behind)) SetActiveWindow(behind);
  if (active && focus != nullptr && IsWindow(focus)) SetFocus(focus);
  // A window goes with its owner, and this one is still needed when the host's has gone.
  SetWindowLongPtrW(window_, GWLP_HWNDPARENT, 0);
}

void FormWindow::EnableOwners() {
  for (const HWND owner : std::exchange(disabled_, {})) EnableWindow(owner, TRUE);
}

namespace {

struct Disabling {
  HWND form;
  std::vector<HWND>& disabled;
};

BOOL CALLBACK DisableOther(HWND window, LPARAM parameter) {
  const auto& disabling = *reinterpret_cast<const Disabling*>(parameter);
  if (window == disabling.form || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  disabling.disabled.push_back(window);
  EnableWindow(window, FALSE);
  return TRUE;
}

}  // namespace

// Windows that stand on their own, which are nobody's owner, wait too.
void FormWindow::DisableThread() {
  const Disabling disabling{window_, disabled_};
  EnumThreadWindows(GetCurrentThreadId(), DisableOther, reinterpret_cast<LPARAM>(&disabling));
}

void FormWindow::RunModal(HWND owner, Waiting waiting) {
  if (!form_.Visible()) return;
  if (owner == nullptr || waiting == Waiting::kThread) DisableThread();
  for (; owner != nullptr; owner = GetWindow(owner, GW_OWNER))
    if (IsWindowEnabled(owner)) {
      disabled_.push_back(owner);
      EnableWindow(owner, FALSE);
    }
  MSG message;
  while (form_.Visible()) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got <= 0) {
      // The program is ending; whoever runs the outer loop must hear of it too.
      if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
      form_.Hide();
      return;
    }
    if (TranslateKey(message)) continue;
    TranslateMessage(&message);
    CallingWindows([&] { DispatchMessageW(&message); });
  }
}

// The window has come to a monitor with other dots per inch, or the user has changed the desktop.
void FormWindow::OnNewSurroundings() {
  const FormMeasures before = std::exchange(measures_, FormMeasures(window_));
  for (const auto& [control, window] : controls_) window->TakeFont();
  if (!shown_) return;
  Complete();
  Resize();
}

void FormWindow::OnDestroy() {
  if (shown_) form_.Hide();
}

LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<FormWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    self->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    self->window_ = nullptr;
    return DefWindowProcW(window, message, wParam, lParam);
  }
  return WindowEntry([&] { return self->OnMessage(message, wParam, lParam); });
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CLOSE:
      if (form_.CloseRequested) form_.CloseRequested();
      return 0;
    case WM_COMMAND:
      if (ControlWindow* control = Find(reinterpret_cast<HWND>(lParam)))
        control->OnCommand(HIWORD(wParam));
      return 0;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lParam);
      ControlWindow* control = Find(header.hwndFrom);
      return control != nullptr ? control->OnNotify(header) : 0;
    }
    case WM_ACTIVATE:
      OnActivate(wParam);
      return 0;
    case WM_SETFOCUS:
      if (IsWindow(lastFocus_)) SetFocus(lastFocus_);
      return 0;
    case WM_NEXTDLGCTL:  // an arrow key on a button
      if (LOWORD(lParam) != FALSE) SetFocus(reinterpret_cast<HWND>(wParam));
      return 0;
    case WM_VSCROLL:
      OnScroll(wParam);
      return 0;
    case WM_MOUSEWHEEL:
      ScrollTo(scroll_ - GET_WHEEL_DELTA_WPARAM(wParam) * measures_.Pixels(1200) / WHEEL_DELTA);
      return 0;
    case WM_DPICHANGED:
    case WM_DISPLAYCHANGE:
    case WM_SETTINGCHANGE:
      OnNewSurroundings();
      return 0;
    case WM_EXITSIZEMOVE:
      Resize();
      return 0;
    case WM_DESTROY:
      OnDestroy();
      return 0;
    case kComplete:
      Complete();
      return 0;
    case WM_CTLCOLOREDIT: {
      auto* box = dynamic_cast<TextBoxWindow*>(Find(reinterpret_cast<HWND>(lParam)));
      if (box == nullptr) break;
      return reinterpret_cast<LRESULT>(box->Background(reinterpret_cast<HDC>(wParam)));
    }
    default:
      break;
  }
  return DefWindowProcW(window_, message, wParam, lParam);
}

void FormWindow::OnActivate(WPARAM wParam) {
  if (LOWORD(wParam) == WA_INACTIVE) return;
  if (form_.Activate) form_.Activate();
  if (IsWindow(lastFocus_)) SetFocus(lastFocus_);
}

}  // namespace sifter
