#pragma once

#include "container/Variant.h"

#include <functional>
#include <string>
#include <vector>

namespace hosts {

// A member of an object that is made for scripts: a method or a property that can be read (call),
// a property that can be written (put), or both.
struct ScriptMember {
  const wchar_t* name;
  std::function<Variant(const std::vector<Variant>& arguments)> call;
  std::function<void(const Variant& value)> put = nullptr;
};

// Names are found whatever the case of their letters. A Failure becomes the script's error.
ComRef<IDispatch> MakeScriptObject(std::vector<ScriptMember> members);

}  // namespace hosts
