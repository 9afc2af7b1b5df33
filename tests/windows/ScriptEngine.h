#pragma once

#include "win32/ComRef.h"

#include <memory>
#include <oaidl.h>
#include <string>
#include <windows.h>

namespace sifter {

// The platform's VBScript, as a program that hosts scripts has it.
class ScriptEngine {
 public:
  // Null where the platform has none.
  static std::unique_ptr<ScriptEngine> Make();

  virtual ~ScriptEngine() = default;

  // An object that scripts know by this name.
  virtual void Add(const std::wstring& name, ComRef<IDispatch> object) = 0;

  // Runs the code; the message of the script's last error, "" when there was none. An error inside
  // an object of the script's, called from outside, counts too; the caller is told as well.
  virtual std::string Run(const std::wstring& code) = 0;

  // The global names of the scripts so far.
  virtual ComRef<IDispatch> Globals() = 0;
};

}  // namespace sifter
