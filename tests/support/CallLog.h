#pragma once

#include "base/RuntimeError.h"
#include "base/Value.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace sifter {

// What the parts of one RecordingListView share: what is recorded and which calls fail.
//
// Members are named after the class that has them: "ListView.hWnd", "ColumnHeaders.Add",
// "ColumnHeader.SetWidth", "ListItems.Count", "ListItem.Bold", "ListItem.SetBold",
// "ListSubItems.Item", "ListSubItem.SetTag".
class CallLog {
 public:
  explicit CallLog(Recorder& recorder) : recorder_(recorder) {}

  // Only these members, or classes whole ("ListItems").
  void RecordOnly(std::set<std::string> members) { only_ = std::move(members); }
  void RecordAll() { only_.reset(); }

  // The `occurrence`-th call of the member from now on raises `error` instead of being made.
  void FailOn(const std::string& member, int occurrence, RuntimeError error) {
    failures_.insert_or_assign(member, Failure{occurrence, std::move(error)});
  }

  // The list has no such member, neither to be read nor to be written: error 438. "ListItem.Bold"
  // takes "ListItem.SetBold" along.
  void Lack(const std::string& member) { lacking_.insert(member); }

  // Makes the call of `className`.`member`, with `line` as what is recorded of it.
  template <class Call>
  decltype(auto) Run(const std::string& className, const std::string& member,
                     const std::string& line, Call&& call) {
    const std::string name = className + '.' + member;
    const bool recorded = !only_ || only_->contains(name) || only_->contains(className);
    if (recorded) recorder_.Line(line);
    try {
      RaiseWhatWasAskedFor(name);
      return std::forward<Call>(call)();
    } catch (const RuntimeError& error) {
      if (recorded) recorder_.Line("raises " + std::to_string(error.Number()));
      throw;
    }
  }

 private:
  struct Failure {
    int callsLeft;
    RuntimeError error;
  };

  static std::string WithoutSet(std::string name) {
    const std::size_t set = name.find(".Set");
    return set == std::string::npos ? name : name.erase(set + 1, 3);
  }

  void RaiseWhatWasAskedFor(const std::string& name) {
    if (lacking_.contains(name) || lacking_.contains(WithoutSet(name)))
      throw RuntimeError(ErrorNumber::kMemberNotSupported);
    const auto failure = failures_.find(name);
    if (failure != failures_.end() && --failure->second.callsLeft == 0) throw failure->second.error;
  }

  Recorder& recorder_;
  std::optional<std::set<std::string>> only_;
  std::set<std::string> lacking_;
  std::map<std::string, Failure> failures_;
};

// One object of a recorded list, under the path by which it was reached: "ListItems(3)".
class RecordedPart {
 protected:
  RecordedPart(std::shared_ptr<CallLog> log, const char* className, std::string path)
      : log_(std::move(log)), className_(className), path_(std::move(path)) {}

  // ListItems(3).Bold
  template <class Part>
  Value Read(const char* member, const Ref<Part>& part, Value (Part::*get)() const) const {
    return log_->Run(className_, member, Path(member), [&] { return (*part.*get)(); });
  }

  // ListItems(3).SetBold True
  template <class Part>
  void Write(const char* member, const Ref<Part>& part, void (Part::*set)(const Value&),
             const Value& value) const {
    log_->Run(className_, member, Path(member) + ' ' + Shown(value), [&] { (*part.*set)(value); });
  }

  // ListItems.Add(0, "k1", "Oak", Empty, Empty); without arguments ListItems.Clear
  template <class Call, class... Arguments>
  decltype(auto) Invoke(const char* member, Call&& call, const Arguments&... arguments) const {
    return log_->Run(className_, member, Path(member) + List(arguments...),
                     std::forward<Call>(call));
  }

  std::string Path(const std::string& member) const {
    return path_.empty() ? member : path_ + '.' + member;
  }
  std::string PathOfItem(const std::string& position) const { return path_ + '(' + position + ')'; }
  const std::shared_ptr<CallLog>& Log() const { return log_; }

 private:
  static std::string List() { return {}; }
  template <class... Rest>
  static std::string List(const Value& first, const Rest&... rest) {
    std::string list = '(' + Shown(first);
    ((list += ", " + Shown(Value(rest))), ...);
    return list + ')';
  }

  std::shared_ptr<CallLog> log_;
  std::string className_;
  std::string path_;
};

}  // namespace sifter
