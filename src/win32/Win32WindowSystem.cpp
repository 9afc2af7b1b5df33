#include "win32/Win32WindowSystem.h"

#include "win32/WindowEntry.h"

#include <windows.h>

namespace sifter {

namespace {

// Only the lower 32 bits of a window's handle count, in 64-bit processes too.
HWND HandleOf(std::int32_t window) {
  return reinterpret_cast<HWND>(static_cast<std::intptr_t>(window));
}

std::int32_t NumberOf(HWND window) {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window));
}

LRESULT CALLBACK Replacement(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return WindowEntry([&]() -> LRESULT {
    return ProcessWinProc().WindowProcedure(NumberOf(window), message,
                                            static_cast<std::intptr_t>(wParam), lParam);
  });
}

}  // namespace

// In 32-bit builds these are GetWindowLongA and SetWindowLongA, under their other name.

WindowSystem::Procedure Win32WindowSystem::WindowProcedure(std::int32_t window) const {
  return GetWindowLongPtrA(HandleOf(window), GWLP_WNDPROC);
}

void Win32WindowSystem::SetWindowProcedure(std::int32_t window, Procedure procedure) {
  SetWindowLongPtrA(HandleOf(window), GWLP_WNDPROC, static_cast<LONG_PTR>(procedure));
}

std::intptr_t Win32WindowSystem::CallProcedure(Procedure procedure, std::int32_t window,
                                               std::uint32_t message, std::intptr_t wParam,
                                               std::intptr_t lParam) {
  return CallWindowProcA(reinterpret_cast<WNDPROC>(procedure), HandleOf(window), message,
                         static_cast<WPARAM>(wParam), lParam);
}

void Win32WindowSystem::SetFocus(std::int32_t window) { ::SetFocus(HandleOf(window)); }

WindowSystem::Procedure Win32WindowSystem::ReplacementProcedure() const {
  return reinterpret_cast<Procedure>(&Replacement);
}

// Neither is ever destroyed: windows may still have messages while the process ends.

WindowSystem& ProcessWindows() {
  static Win32WindowSystem* const windows = new Win32WindowSystem;
  return *windows;
}

WinProc& ProcessWinProc() {
  static WinProc* const table = new WinProc(ProcessWindows());
  return *table;
}

}  // namespace sifter
