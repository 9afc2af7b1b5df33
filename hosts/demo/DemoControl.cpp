#include "demo/Clipboard.h"
#include "demo/DemoWindow.h"

namespace hosts {

namespace {

constexpr wchar_t kBanner[] = L"RowSifter.TSLvwBannerFilter";
constexpr wchar_t kButton[] = L"RowSifter.TSRowSifter";

}  // namespace

// A control that is closed lets go of the list.
void DemoWindow::UseControl(bool banner) {
  control_.reset();
  banner_ = banner;
  const RECT nowhere{};
  control_ =
      std::make_unique<HostedControl>(*frame_, Window(), banner ? kBanner : kButton, nowhere,
                                      [this](const MSG& key) { return FocusFromControl(key); });
  control_->Listen(
      [this](const std::wstring& event, const std::vector<VARIANT*>&) { ControlRaised(event); });
  if (banner) {
    control_->Object().Put(L"ItemDescription", Variant(L"files"));
    control_->Object().Put(L"BannerButtonVisible", Variant(true));
  }
  control_->Object().PutReference(L"Listview", list_->Object());
  Layout();
}

void DemoWindow::CallControl(const wchar_t* method, std::initializer_list<Variant> arguments) {
  status_->AddEvent(method);
  control_->Object().Call(method, arguments);
}

// The button's Active is that of the last showing of its dialog, whatever became of the list.
bool DemoWindow::Filtered() const {
  return banner_ ? control_->Object().Get(L"Active").Truth() : activated_;
}

// Before all rows are filled in anew. The button control finds out by itself that they were.
void DemoWindow::ForgetFilter() {
  activated_ = false;
  if (banner_) control_->Object().Call(L"DeactivateFilter");
}

// Rows are not touched from inside an event: the control is still at it. Nor does its Active tell
// of the outcome yet.
void DemoWindow::ControlRaised(const std::wstring& event) {
  status_->AddEvent(event);
  if (event == L"ExtraButtonClicked") return CopyRows();
  activated_ = event == L"FilterActivated";
  CountChanged();
  FollowSoon();
}

void DemoWindow::CopyRows() {
  CopyToClipboard(Window(), list_->TextOfRows());
  status_->ShowNote(std::to_wstring(list_->Shown()) + L" rows copied");
}

}  // namespace hosts
