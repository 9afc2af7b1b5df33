#pragma once

#include <string>
#include <windows.h>

namespace hosts {

// Tells that something in a folder has changed: files that come, go, grow or are renamed.
class FolderWatch {
 public:
  FolderWatch() = default;
  explicit FolderWatch(const std::wstring& folder);
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(FolderWatch&& other) noexcept;
  ~FolderWatch();

  // Signalled once there was a change; null where the system can't tell.
  HANDLE Handle() const { return handle_; }
  // From now on for the next change. Called before looking into the folder, so that none is missed.
  void Rearm();

 private:
  void Close();

  HANDLE handle_ = nullptr;
};

}  // namespace hosts
