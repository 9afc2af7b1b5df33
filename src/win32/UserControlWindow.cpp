#include "win32/UserControlWindow.h"

#include "base/RuntimeError.h"
#include "win32/FormOrder.h"
#include "win32/ThisModule.h"
#include "win32/WindowEntry.h"

#include <algorithm>
#include <utility>

namespace sifter {

namespace {

constexpr wchar_t kWindowClass[] = L"RowSifterControl";
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
constexpr UINT kDpiChangedAfterParent = 0x02E3;  // unknown to headers for older systems
constexpr LONG_PTR kDialogStyles = WS_TABSTOP | WS_GROUP;

void RegisterWindowClass(WNDPROC procedure) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.style = CS_DBLCLKS;
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = ThisModule();
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = kWindowClass;
  RegisterClassExW(&windowClass);  // fails harmlessly when it is registered already
}

}  // namespace

COLORREF ColorOf(std::int32_t color) {
  const auto bits = static_cast<std::uint32_t>(color);
  if ((bits & 0x80000000u) != 0) return GetSysColor(static_cast<int>(bits & 0xFFu));
  return bits & 0x00FFFFFFu;
}

void UserControlWindow::ForgetWindowClass() noexcept {
  UnregisterClassW(kWindowClass, ThisModule());
}

UserControlWindow::UserControlWindow(UserControl& control, UserControlSite& site, HWND parent,
                                     const RECT& box)
    : control_(control), site_(site) {
  RegisterWindowClass(Procedure);
  const HWND window =
      CreateWindowExW(0, kWindowClass, L"", kStyle, box.left, box.top, box.right - box.left,
                      box.bottom - box.top, parent, nullptr, ThisModule(), this);
  if (window == nullptr) throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
  try {
    Fill();
  } catch (...) {
    LetGo();
    throw;
  }
}

UserControlWindow::~UserControlWindow() { LetGo(); }

void UserControlWindow::Fill() {
  measures_.emplace(window_.Get());
  tips_.emplace(window_.Get());
  TakeBackColor();
  EnableWindow(window_.Get(), control_.Enabled());
  for (Control* each : control_.Controls()) MakeControl(*each);
  control_.Watch(this);
  control_.Changed = [this] {
    TakeBackColor();
    RedrawWindow(window_.Get(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    Enable();
  };
  OnSize();
}

// What is still to come for the window finds no object any more.
void UserControlWindow::LetGo() {
  control_.Watch(nullptr);
  control_.Changed = nullptr;
  tips_.reset();
  controls_.clear();
  if (window_) SetWindowLongPtrW(window_.Get(), GWLP_USERDATA, 0);
}

void UserControlWindow::MakeControl(Control& control) {
  std::unique_ptr<ControlWindow> window = ControlWindow::For(*this, control);
  if (window == nullptr) return;
  const LONG_PTR style = GetWindowLongPtrW(window->Handle(), GWL_STYLE);
  SetWindowLongPtrW(window->Handle(), GWL_STYLE, style & ~kDialogStyles);
  window->Mirror();
  Enable(*window);
  tips_->Tell(window->Handle(), control.ToolTipText());
  Place(*window);
  ShowWindow(window->Handle(), control.Visible() ? SW_SHOWNA : SW_HIDE);
  controls_.emplace(&control, std::move(window));
}

void UserControlWindow::Place(ControlWindow& control) const {
  const Control& shown = control.Shown();
  RECT box{};
  box.left = measures_->Pixels(shown.Left());
  box.top = measures_->Pixels(shown.Top());
  box.right = box.left + measures_->Pixels(shown.Width());
  box.bottom = box.top + measures_->Pixels(shown.Height());
  control.Place(box);
}

void UserControlWindow::OnControlRemoved(Control& control) {
  ControlWindow* const window = Find(control);
  if (window != nullptr && tips_) tips_->Tell(window->Handle(), {});
  controls_.erase(&control);
}

// A control that nobody can use looks so in all its parts.
void UserControlWindow::Enable(ControlWindow& control) const {
  EnableWindow(control.Handle(), control_.Enabled() && control.Shown().Enabled());
}

// A window that is disabled would keep the focus, or lose it to none.
void UserControlWindow::Enable() {
  const bool enabled = control_.Enabled();
  const HWND focus = GetFocus();
  EnableWindow(window_.Get(), enabled);
  for (const auto& [control, window] : controls_) Enable(*window);
  if (!enabled && (focus == window_.Get() || IsChild(window_.Get(), focus)))
    SetFocus(GetParent(window_.Get()));
}

void UserControlWindow::OnPropertyChanged(Control& control, ControlProperty property) {
  ControlWindow* const window = Find(control);
  if (window == nullptr) return;
  switch (property) {
    case ControlProperty::kLeft:
    case ControlProperty::kTop:
    case ControlProperty::kWidth:
    case ControlProperty::kHeight:
      Place(*window);
      break;
    case ControlProperty::kVisible:
      ShowWindow(window->Handle(), control.Visible() ? SW_SHOWNA : SW_HIDE);
      break;
    case ControlProperty::kEnabled: {
      const bool leaves = !control.Enabled() && GetFocus() == window->Handle();
      Enable(*window);
      if (leaves) SetFocus(window_.Get());
      break;
    }
    case ControlProperty::kToolTipText:
      tips_->Tell(window->Handle(), control.ToolTipText());
      break;
    default:
      window->Update(property);
  }
}

ControlWindow* UserControlWindow::Find(const Control& control) const {
  const auto found = controls_.find(&control);
  return found == controls_.end() ? nullptr : found->second.get();
}

ControlWindow* UserControlWindow::Find(HWND window) const {
  for (; window != nullptr && window != window_.Get(); window = GetAncestor(window, GA_PARENT))
    for (const auto& [control, shown] : controls_)
      if (shown->Handle() == window) return shown.get();
  return nullptr;
}

int UserControlWindow::IdOf(const Control& control) const { return ControlId(control_, control); }

void UserControlWindow::Place(const RECT& box, const RECT& visible) {
  if (!window_) return;
  RECT inside{};
  if (IntersectRect(&inside, &box, &visible) && EqualRect(&inside, &box)) {
    SetWindowRgn(window_.Get(), nullptr, TRUE);
  } else {
    OffsetRect(&inside, -box.left, -box.top);
    SetWindowRgn(window_.Get(), CreateRectRgnIndirect(&inside), TRUE);  // the window's from now on
  }
  SetWindowPos(window_.Get(), nullptr, box.left, box.top, box.right - box.left,
               box.bottom - box.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void UserControlWindow::OnSize() {
  RECT area;
  GetClientRect(window_.Get(), &area);
  const int dpi = measures_->Dpi();
  control_.SetSize(PixelsToTwips(area.right, dpi), PixelsToTwips(area.bottom, dpi));
}

// The window has come to a monitor with other dots per inch. Places that stay the same in twips are
// others in pixels.
void UserControlWindow::OnNewDpi() {
  const FormMeasures before = std::exchange(*measures_, FormMeasures(window_.Get()));
  for (const auto& [control, window] : controls_) {
    window->TakeFont();
    Place(*window);
  }
  site_.Keep([this] { OnSize(); });
}

void UserControlWindow::TakeBackColor() {
  background_.Reset(CreateSolidBrush(ColorOf(control_.BackColor())));
}

void UserControlWindow::ShowAsDefault(bool isDefault) {
  for (const auto& [control, window] : controls_)
    if (control->Kind() == ControlKind::kCommandButton)
      SendMessageW(window->Handle(), BM_SETSTYLE, isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON,
                   TRUE);
}

void UserControlWindow::FocusCame(ControlWindow&) { site_.FocusCame(); }

void UserControlWindow::FocusLeaves(HWND next) {
  if (next == nullptr || (next != window_.Get() && !IsChild(window_.Get(), next)))
    site_.FocusWent();
}

LRESULT CALLBACK UserControlWindow::Procedure(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* self =
        static_cast<UserControlWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    self->window_.Reset(window);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<UserControlWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr || !self->measures_) return DefWindowProcW(window, message, wParam, lParam);
  return WindowEntry([&] { return self->OnMessage(message, wParam, lParam); });
}

LRESULT UserControlWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    // What the host answers to either may end this object, so there is nothing after them.
    case WM_SIZE:
      site_.Keep([this] { OnSize(); });
      return 0;
    case kDpiChangedAfterParent:
      OnNewDpi();
      return 0;
    case WM_COMMAND:
      // The work may end this object, so there is nothing after it.
      if (ControlWindow* const control = Find(reinterpret_cast<HWND>(lParam)))
        site_.Run([control, wParam] { control->OnCommand(HIWORD(wParam)); });
      return 0;
    case WM_SETFOCUS:
      TakeFocus();
      return 0;
    case WM_ERASEBKGND: {
      RECT area;
      GetClientRect(window_.Get(), &area);
      FillRect(reinterpret_cast<HDC>(wParam), &area, background_.Get());
      return TRUE;
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (ControlWindow* const control = Find(item.hwndItem)) control->OnDraw(item);
      return TRUE;
    }
    case WM_CTLCOLORSTATIC:
      SetTextColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_BTNTEXT));
      SetBkColor(reinterpret_cast<HDC>(wParam), ColorOf(control_.BackColor()));
      return reinterpret_cast<LRESULT>(background_.Get());
    case WM_CTLCOLORBTN:
      return reinterpret_cast<LRESULT>(background_.Get());
    case WM_SYSCOLORCHANGE:
      TakeBackColor();
      break;
    case WM_DESTROY:
      tips_.reset();
      controls_.clear();
      break;
    case WM_NCDESTROY:
      OnDestroy();
      return 0;
    default:
      break;
  }
  return DefWindowProcW(window_.Get(), message, wParam, lParam);
}

// The host has destroyed its window, and this one with it.
void UserControlWindow::OnDestroy() {
  SetWindowLongPtrW(window_.Get(), GWLP_USERDATA, 0);
  const HWND gone = window_.Release();
  DefWindowProcW(gone, WM_NCDESTROY, 0, 0);
}

}  // namespace sifter
