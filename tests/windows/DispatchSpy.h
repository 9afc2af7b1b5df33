#pragma once

#include "win32/ComRef.h"

#include <functional>
#include <map>
#include <memory>
#include <oaidl.h>
#include <string>
#include <vector>
#include <windows.h>

namespace sifter {

// What the parts of one list of a foreign make share: what is asked of them and how they answer.
struct DispatchSpyLog {
  int nameQuestions = 0;  // GetIDsOfNames and its script form
  int alive = 0;          // objects that somebody holds
  int made = 0;

  // Calls in order: "get Text", "call Add(-, "k", "Oak", -, -)", "put Text "x"", "putref Tag
  // object"; "-" for an argument that was left out. A name that is asked for and not there:
  // "no Ghosted".
  std::vector<std::string> calls;
  bool recordCalls = true;

  // As a script's objects: names are answered for by IDispatchEx alone, each object has numbers of
  // its own for its members, and a function isn't a property.
  bool isScript = false;

  // Members that objects don't have.
  std::vector<std::string> lacking;

  // The result of the next call of a member, instead of the call: a result code and, for
  // DISP_E_EXCEPTION, what goes into the exception information.
  struct Failure {
    HRESULT result;
    HRESULT code;
    std::wstring description;
  };
  std::map<std::string, Failure> failures;

  // Changes the result of reading a member: "Count".
  std::map<std::string, std::function<void(VARIANT&)>> results;

  // Another interface of the list's object.
  std::function<HRESULT(REFIID, void**)> otherInterfaces;

  // What each kind of object has been asked for by name, by number.
  std::map<std::string, std::map<DISPID, std::string>> names;
};

// An object that hands calls on to `object` and reports them. What it gives back is spied on too.
// Objects that are reached the same way are of one `kind`.
ComRef<IDispatch> SpyOn(ComRef<IDispatch> object, std::shared_ptr<DispatchSpyLog> log,
                        std::string kind = "list");

}  // namespace sifter
