#include "demo/FolderWatch.h"

#include <utility>

namespace hosts {

FolderWatch::FolderWatch(const std::wstring& folder) {
  const HANDLE handle = FindFirstChangeNotificationW(
      folder.c_str(), FALSE,
      FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME | FILE_NOTIFY_CHANGE_ATTRIBUTES |
          FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE);
  if (handle != INVALID_HANDLE_VALUE) handle_ = handle;
}

FolderWatch& FolderWatch::operator=(FolderWatch&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}

FolderWatch::~FolderWatch() { Close(); }

void FolderWatch::Rearm() {
  if (handle_ != nullptr && !FindNextChangeNotification(handle_)) Close();
}

void FolderWatch::Close() {
  if (handle_ != nullptr) FindCloseChangeNotification(std::exchange(handle_, nullptr));
}

}  // namespace hosts
