#pragma once

#include "Container.h"
#include "CriteriaDialog.h"
#include "DispatchCalls.h"
#include "Library.h"
#include "ListViewOnAForm.h"
#include "Sinks.h"
#include "User.h"
#include "rowsifter/ListViewObject.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/NativeListView.h"
#include "win32/Variants.h"

#include <functional>
#include <string>
#include <vector>

namespace sifter {

using Strings = std::vector<std::string>;

// An object as a value to hand over; Nothing for null.
inline Value ObjectValue(IUnknown* object) {
  if (object == nullptr) return Value(Ref<Object>());
  return Value(Ref<Object>(ComObject::Of(object)));
}

// Set control.Name = object, as against control.Name = object.
inline void PutRef(const ComRef<IDispatch>& object, const std::wstring& name, const Value& value) {
  UniqueVariant result;
  UniqueExcepInfo error;
  const HRESULT called = TryInvoke(object.Get(), IdOf(object.Get(), name), DISPATCH_PROPERTYPUTREF,
                                   {value}, result, error);
  if (FAILED(called)) throw ErrorFromResult(called, &error.Fill());
}

// Every member that can be read but the list.
inline Strings FieldsOf(const ComRef<IDispatch>& control) {
  Strings fields;
  for (const wchar_t* name :
       {L"Active", L"ColumnsToExclude", L"Filter", L"FilterCaption", L"FilterMessage"})
    fields.push_back(Shown(Get(control, name)));
  return fields;
}

inline Strings DefaultFields() {
  return {"False", "\"\"", "\"\"", "\"Tarvenn Software Row Sifter\"",
          "\"Please enter criteria to apply to your listview\""};
}

// Returns when the user has left the dialog.
inline void ShowModally(const std::wstring& type, const ComRef<IDispatch>& control) {
  if (type == kBanner)
    Call(control, L"ShowFilter", {true});
  else
    Call(control, L"ShowFilter");
}

// The list view leaves the upper edge of its form to the control.
inline void MakeRoomAbove(HWND listView) { MoveWindow(listView, 0, 100, 580, 280, TRUE); }

// A form with a list view of five trees and a control above it, in run mode and active, whose
// events and whose words to the container are recorded; and a user.
class HostedControl : public ComTest {
 protected:
  explicit HostedControl(const std::wstring& name) : type(name) {
    MakeRoomAbove(form.List());
    Fill(*rows, {"Name", "Qty"},
         {{"Oak", "3"}, {"Ash", "5"}, {"Elm", "7"}, {"Larch", "9"}, {"Birch", "11"}});
    EXPECT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
    container.Place(control);
    container.Activate();
    PutRef(control, L"Listview", ObjectValue(list.Get()));
    recorder.Clear();
  }

  // The host calls ShowFilter, modally; meanwhile the user does this. A dialog left open is hidden
  // then.
  void Show(const std::function<void()>& script) {
    ShowBy([&] { ShowModally(type, control); }, script);
  }

  // The same with another way to have the dialog shown.
  void ShowBy(const std::function<void()>& show, const std::function<void()>& script) {
    user.Does([&] {
      dialog.Appears();
      script();
      if (CriteriaDialog::Window() != nullptr) dialog.PressesByMessage("&Hide Filter");
      dialog.Goes();
    });
    show();
    user.PumpUntilDone();
  }

  // One showing in which the user filters the names.
  void FilterNames(const std::string& word, const std::string& text) {
    Show([&] { dialog.FiltersByMessages(0, word, text); });
  }

  Strings Names() { return FirstTexts(*rows); }

  const std::wstring type;
  const IID eventsId = Library::Built().IdOf((L"__" + type).c_str());
  Recorder recorder;
  ListViewOnAForm form;
  Ref<HostListView> rows = NativeListView(form.List());
  ComRef<IDispatch> list;
  Container container{form.Parent(), recorder};
  EventSink events{eventsId, recorder};
  ComRef<IDispatch> control = Create(type);
  Connection connection{control.Get(), eventsId, &events};
  User user;
  CriteriaDialog dialog{user};
};

// For tests of both controls: which of them a test is about.
inline std::string ControlName(const testing::TestParamInfo<const wchar_t*>& control) {
  return FromWide(control.param).ToUtf8();
}

class HostedSifter : public HostedControl {
 protected:
  HostedSifter() : HostedControl(kSifter) {}
};

}  // namespace sifter
