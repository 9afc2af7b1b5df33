#pragma once

#include "container/Automation.h"

#include <activscp.h>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>
#include <windows.h>

namespace hosts {

// What the script's engine and its site know together.
struct ScriptState {
  HWND window = nullptr;  // borrowed: for message boxes of the script
  std::map<std::wstring, ComRef<IDispatch>> objects;
  std::function<void(const std::wstring& error, int line)> onError;
};

// A script of the platform's VBScript engine.
class Script {
 public:
  // `onError` is told each run-time error and each error in the text, with its line.
  Script(HWND window, std::function<void(const std::wstring& error, int line)> onError);
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;
  ~Script();

  // An object that the script knows by this name, from now on.
  void Add(const std::wstring& name, ComRef<IDispatch> object);

  // Runs what stands outside of procedures; false after an error.
  bool Run(const std::wstring& text);

  // Calls a procedure if the script has one of that name. Arguments by reference are given on as
  // such: what the procedure writes to them arrives.
  void CallIfThere(const std::wstring& procedure, const std::vector<VARIANT*>& arguments);

 private:
  std::shared_ptr<ScriptState> state_;
  ComRef<IActiveScript> engine_;
  ComRef<IActiveScriptParse> parser_;
};

}  // namespace hosts
