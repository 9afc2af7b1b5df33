#include "win32/LocaleWatch.h"

namespace sifter {

namespace {

UniqueRegistryKey OpenSettings() {
  HKEY key = nullptr;
  RegOpenKeyExW(HKEY_CURRENT_USER, L"Control Panel\\International", 0, KEY_QUERY_VALUE, &key);
  return UniqueRegistryKey(key);
}

}  // namespace

LocaleWatch::LocaleWatch() : settings_(OpenSettings()), seen_(Look()) {}

bool LocaleWatch::HasChanged() {
  const State now = Look();
  if (now == seen_) return false;
  seen_ = now;
  return true;
}

LocaleWatch::State LocaleWatch::Look() const {
  State state;
  state.locale = GetUserDefaultLCID();
  FILETIME written{};
  if (settings_ &&
      RegQueryInfoKeyW(settings_.Get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                       nullptr, nullptr, nullptr, nullptr, &written) == ERROR_SUCCESS)
    state.written = (std::uint64_t{written.dwHighDateTime} << 32) | written.dwLowDateTime;
  return state;
}

}  // namespace sifter
