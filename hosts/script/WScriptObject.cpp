#include "container/Failure.h"
#include "script/ScriptObject.h"
#include "script/ScriptObjects.h"

#include <cstdio>
#include <filesystem>

namespace hosts {

namespace {

void PrintLine(const std::wstring& line) {
  const int size = static_cast<int>(line.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, line.data(), size, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, line.data(), size, bytes.data(), length, nullptr, nullptr);
  std::puts(bytes.c_str());
  // Whoever reads along a pipe reads it now.
  std::fflush(stdout);
}

Variant Echo(const std::vector<Variant>& arguments) {
  std::wstring line;
  for (const Variant& argument : arguments)
    line += (&argument == arguments.data() ? L"" : L" ") + argument.Text();
  PrintLine(line);
  return Variant();
}

// At once, even in the middle of `On Error Resume Next`, which would carry on after any error that
// a call can give back.
Variant Quit(const std::vector<Variant>& arguments) {
  std::fflush(stdout);
  ExitProcess(arguments.empty() ? 0 : static_cast<UINT>(arguments[0].Number()));
}

Variant CreateNamedObject(const std::vector<Variant>& arguments) {
  if (arguments.size() != 1) throw Failure(L"CreateObject takes one name", DISP_E_BADPARAMCOUNT);
  return Variant(Automation::Create(arguments[0].Text()).Object());
}

}  // namespace

ComRef<IDispatch> MakeWScriptObject(const std::wstring& file) {
  const std::filesystem::path path = std::filesystem::absolute(file);
  const std::wstring name = path.filename().wstring();
  return MakeScriptObject({
      {L"Echo", Echo},
      {L"Quit", Quit},
      {L"CreateObject", CreateNamedObject},
      {L"ScriptName", [name](const auto&) { return Variant(std::wstring_view(name)); }},
      {L"ScriptFullName",
       [full = path.wstring()](const auto&) { return Variant(std::wstring_view(full)); }},
  });
}

}  // namespace hosts
