#include "container/Failure.h"
#include "script/ScriptObject.h"
#include "script/ScriptObjects.h"

namespace hosts {

namespace {

constexpr int kControlWidth = 1440;
constexpr int kControlHeight = 420;

std::wstring CaptionOf(HWND window) {
  std::wstring caption(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  GetWindowTextW(window, caption.data(), static_cast<int>(caption.size()) + 1);
  return caption;
}

Variant AddControl(ScriptWindow& window, Script& script, const std::vector<Variant>& arguments) {
  if (arguments.size() < 2) throw Failure(L"AddControl needs a class and a name");
  const std::wstring name = arguments[1].Text();
  const int width = arguments.size() > 2 ? arguments[2].Number() : kControlWidth;
  const int height = arguments.size() > 3 ? arguments[3].Number() : kControlHeight;
  IDispatch* const control = window.AddControl(
      arguments[0].Text(), width, height,
      [&script, name](const std::wstring& event, const std::vector<VARIANT*>& values) {
        script.CallIfThere(name + L"_" + event, values);
      });
  script.Add(name, ComRef<IDispatch>(control));
  return Variant(control);
}

}  // namespace

ComRef<IDispatch> MakeFormObject(ScriptWindow& window, Script& script) {
  return MakeScriptObject({
      {L"Caption",
       [&window](const auto&) { return Variant(std::wstring_view(CaptionOf(window.Window()))); },
       [&window](const Variant& caption) {
         SetWindowTextW(window.Window(), caption.Text().c_str());
       }},
      {L"hWnd",
       [&window](const auto&) {
         return Variant(static_cast<int>(reinterpret_cast<LONG_PTR>(window.Window())));
       }},
      {L"List", [&window](const auto&) { return Variant(window.List()); }},
      {L"AddControl", [&](const auto& arguments) { return AddControl(window, script, arguments); }},
      {L"Show",
       [&window](const auto&) {
         window.Show();
         return Variant();
       }},
      {L"Close",
       [&window](const auto&) {
         PostMessageW(window.Window(), WM_CLOSE, 0, 0);
         return Variant();
       }},
  });
}

}  // namespace hosts
