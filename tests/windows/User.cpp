#include "User.h"

#include <gtest/gtest.h>

namespace sifter {

namespace {

// A timer's procedure is told nothing about who set it; there is one user at a time.
User* present = nullptr;

constexpr UINT kIdleMilliseconds = 1;

}  // namespace

User::User() : thread_(ConvertThreadToFiber(nullptr)), own_(CreateFiber(0, Live, this)) {
  present = this;
}

User::~User() {
  EXPECT_TRUE(IsDone()) << "the user was not through";
  if (timer_ != 0) KillTimer(nullptr, timer_);
  DeleteFiber(own_);
  ConvertFiberToThread();
  present = nullptr;
}

void User::Does(std::function<void()> script) {
  ASSERT_TRUE(IsDone());
  script_ = std::move(script);
  timer_ = SetTimer(nullptr, 0, kIdleMilliseconds, Tick);
}

void User::PumpUntilDone() {
  MSG message;
  while (!IsDone() && GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// Timers come last: a loop has nothing else to do when it hands out one.
void CALLBACK User::Tick(HWND, UINT, UINT_PTR, DWORD) {
  // While the user acts, some of the system's functions hand out messages themselves.
  if (present == nullptr || present->IsDone() || present->acting_) return;
  present->acting_ = true;
  SwitchToFiber(present->own_);
}

void CALLBACK User::Live(void* self) {
  auto& user = *static_cast<User*>(self);
  for (;;) {
    user.script_();
    KillTimer(nullptr, std::exchange(user.timer_, 0));
    user.script_ = nullptr;
    user.Rests();
  }
}

void User::Rests() {
  acting_ = false;
  SwitchToFiber(thread_);
}

void User::WaitsFor(const std::function<bool()>& holds) {
  const ULONGLONG latest = GetTickCount64() + 10'000;
  while (!holds()) {
    if (GetTickCount64() > latest) {
      ADD_FAILURE() << "what the user waits for doesn't happen";
      return;
    }
    Rests();
  }
}

void User::SendKey(WORD key, WORD unit, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = unit;
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

void User::SendMouse(DWORD flags, DWORD data) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  input.mi.mouseData = data;
  SendInput(1, &input, sizeof input);
}

void User::Presses(const std::vector<int>& keys) {
  for (const int key : keys) SendKey(static_cast<WORD>(key), 0, 0);
  for (auto key = keys.rbegin(); key != keys.rend(); ++key)
    SendKey(static_cast<WORD>(*key), 0, KEYEVENTF_KEYUP);
  Rests();
}

void User::Types(TextView text) {
  for (const char16_t unit : text) {
    SendKey(0, unit, KEYEVENTF_UNICODE);
    SendKey(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
    Rests();
  }
}

void User::MovesTo(POINT onScreen) {
  SetCursorPos(onScreen.x, onScreen.y);
  SendMouse(MOUSEEVENTF_MOVE);
  Rests();
}

void User::HoldsButton() {
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  Rests();
}

void User::LetsButtonGo() {
  SendMouse(MOUSEEVENTF_LEFTUP);
  Rests();
}

void User::ClicksAt(POINT onScreen) {
  MovesTo(onScreen);
  HoldsButton();
  LetsButtonGo();
}

void User::Clicks(HWND window) { ClicksAt(MiddleOf(window)); }

void User::TurnsWheel(POINT onScreen, int notches) {
  MovesTo(onScreen);
  SendMouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(notches * WHEEL_DELTA));
  Rests();
}

POINT MiddleOf(HWND window) {
  RECT box;
  GetWindowRect(window, &box);
  return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
}

}  // namespace sifter
