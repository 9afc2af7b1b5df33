#include "subclass/WinProc.h"

#include "subclass/HookClass.h"

#include <algorithm>

namespace sifter {

namespace {

constexpr std::uint32_t kDestroy = 2;
constexpr std::uint32_t kNonClientDestroy = 130;
constexpr std::uint32_t kParentNotify = 528;

// A parent notification carries the message of the child in its lower half and the child's
// identifier in its upper half. Exactly 2 is the destruction of a child whose identifier is 0, and
// counts as an end. The box in which a list's label is edited is such a child, so the watching
// ends with the first edit; hosts rely on attaching the list anew, which is why it isn't mended.
bool EndsTheWatching(std::uint32_t message, std::intptr_t wParam) {
  return message == kDestroy || message == kNonClientDestroy ||
         (message == kParentNotify && wParam == static_cast<std::intptr_t>(kDestroy));
}

// There are foreign frames above a window procedure, through which nothing may unwind; and the
// window's own procedure must have its message whatever a subscriber does.
void TellOne(HookClass& subscriber, std::uint32_t message, std::intptr_t wParam,
             std::intptr_t lParam) noexcept {
  try {
    subscriber.RaiseWndProc(message, static_cast<std::int32_t>(wParam),
                            static_cast<std::int32_t>(lParam));
  } catch (...) {
  }
}

}  // namespace

std::int16_t WinProc::Find(std::int32_t window) const {
  return table_.Find([window](const Entry& entry) { return entry.window == window; });
}

void WinProc::Hook(std::int32_t window, HookClass& subscriber) {
  if (window == 0) return;
  const std::int16_t position = Find(window);
  if (position == 0) {
    table_.Append({window, {{&subscriber, ++lastTicket_}}, windows_.WindowProcedure(window)});
    windows_.SetWindowProcedure(window, windows_.ReplacementProcedure());
    return;
  }
  std::vector<Subscription>& subscribers = table_[position].subscribers;
  const bool joined =
      std::any_of(subscribers.begin(), subscribers.end(),
                  [&](const Subscription& s) { return s.subscriber == &subscriber; });
  if (!joined) subscribers.push_back({&subscriber, ++lastTicket_});
}

void WinProc::Unhook(std::int32_t window, HookClass& subscriber) {
  const std::int16_t position = Find(window);
  if (position == 0) return;
  std::vector<Subscription>& subscribers = table_[position].subscribers;
  std::erase_if(subscribers, [&](const Subscription& s) { return s.subscriber == &subscriber; });
  if (subscribers.empty()) RemoveEntry(position);
}

void WinProc::RemoveEntry(std::int16_t position) {
  const Entry& entry = table_[position];
  if (entry.original != 0) windows_.SetWindowProcedure(entry.window, entry.original);
  table_.RemoveAt(position);
}

std::intptr_t WinProc::Call(WindowSystem::Procedure original, std::int32_t window,
                            std::uint32_t message, std::intptr_t wParam, std::intptr_t lParam) {
  return original == 0 ? 0 : windows_.CallProcedure(original, window, message, wParam, lParam);
}

std::intptr_t WinProc::CallOriginal(std::int32_t window, std::uint32_t message,
                                    std::intptr_t wParam, std::intptr_t lParam) {
  const std::int16_t position = Find(window);
  return position == 0 ? 0 : Call(table_[position].original, window, message, wParam, lParam);
}

std::intptr_t WinProc::WindowProcedure(std::int32_t window, std::uint32_t message,
                                       std::intptr_t wParam, std::intptr_t lParam) {
  const std::int16_t position = Find(window);
  if (position == 0) return 0;
  const WindowSystem::Procedure original = table_[position].original;

  if (EndsTheWatching(message, wParam)) {
    const std::intptr_t result = Call(original, window, message, wParam, lParam);
    // The table may look different by now: windows end inside each other's messages.
    if (const std::int16_t now = Find(window); now != 0) RemoveEntry(now);
    return result;
  }
  Tell(window, message, wParam, lParam);
  return Call(original, window, message, wParam, lParam);
}

// Goes by tickets, since any position may be another's after each of the subscribers.
void WinProc::Tell(std::int32_t window, std::uint32_t message, std::intptr_t wParam,
                   std::intptr_t lParam) {
  const std::uint64_t lastToTell = lastTicket_;
  Subscription next = NextSubscription(window, 0);
  while (next.subscriber != nullptr && next.ticket <= lastToTell) {
    if (next.subscriber->Messages(message)) TellOne(*next.subscriber, message, wParam, lParam);
    next = NextSubscription(window, next.ticket);
  }
}

// The first one of the window's who came after the holder of the ticket; none: null.
WinProc::Subscription WinProc::NextSubscription(std::int32_t window, std::uint64_t after) const {
  const std::int16_t position = Find(window);
  if (position == 0) return {nullptr, 0};
  const std::vector<Subscription>& subscribers = table_[position].subscribers;
  const auto next = std::find_if(subscribers.begin(), subscribers.end(),
                                 [after](const Subscription& s) { return s.ticket > after; });
  return next == subscribers.end() ? Subscription{nullptr, 0} : *next;
}

}  // namespace sifter
