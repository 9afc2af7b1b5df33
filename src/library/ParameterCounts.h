#pragma once

#include <oaidl.h>
#include <vector>
#include <windows.h>

namespace sifter {

// How many arguments the members of an interface take. Some systems leave surplus arguments of a
// late-bound call unnoticed.
class ParameterCounts {
 public:
  // The platform's errors come out.
  explicit ParameterCounts(ITypeInfo& information);

  // Whether a call gives more arguments than any member with this identifier and of these kinds
  // (DISPATCH_...) takes. Members that aren't there refuse nothing; that they are missing is for
  // the call to find out.
  bool Refuses(DISPID id, WORD kinds, UINT arguments) const;

 private:
  struct Member {
    DISPID id;
    int kind;  // INVOKEKIND, the same bits as DISPATCH_...
    UINT parameters;
  };

  std::vector<Member> members_;
};

}  // namespace sifter
