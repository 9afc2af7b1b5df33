#pragma once

#include "base/Conversions.h"
#include "controls/TSLvwBannerFilter.h"
#include "listmodel/MemoryListView.h"
#include "support/ClockFake.h"
#include "support/MemoryListWindow.h"
#include "support/MemoryWindowSystem.h"
#include "support/VersionInfoFake.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace sifter {

// A user who does the same in every modal showing. Whatever he leaves open is closed for him.
class ScriptedUser final : public FormHost {
 public:
  std::function<void()> acts;
  std::function<void()> movesFocus;

  void ShowModal(Form& form) override {
    Do(acts);
    form.Hide();
  }
  void ShowModeless(Form&) override {}
  void Hide(Form&) override {}
  void SetFocus(Form&, Control&) override { Do(movesFocus); }
  void DeleteSystemMenuItem(std::int32_t) override {}
  void Unload(Form&) override {}

 private:
  static void Do(const std::function<void()>& work) {
    if (const std::function<void()> done = work) done();
  }
};

// Message boxes that are answered at once.
class AnsweredBoxes final : public Prompts {
 public:
  std::vector<Text> boxes;
  std::function<void()> whileUp;

  void Show(const Text& text, const Text&, PromptIcon) override {
    boxes.push_back(text);
    if (const std::function<void()> done = whileUp) done();
  }
};

// A part of the host's that sees its list's notices.
class ListeningHost final : public ListObserver {
 public:
  explicit ListeningHost(Ref<MemoryListView> list) : list_(std::move(list)) {
    list_->AddObserver(this);
  }
  ~ListeningHost() override { list_->RemoveObserver(this); }
  ListeningHost(const ListeningHost&) = delete;
  ListeningHost& operator=(const ListeningHost&) = delete;

  std::function<void(ListMessage message)> hears;

  void OnListMessage(ListMessage message, std::intptr_t, std::intptr_t) override {
    if (const std::function<void(ListMessage)> done = hears) done(message);
  }

 private:
  Ref<MemoryListView> list_;
};

// A banner with all it needs, over lists in memory, as many of them as a test wants to go through.
// Nothing is recorded.
struct BannerWorld {
  ControlServices Services() {
    return {{user, prompts, conversions, clock},
            {user, version},
            windows.Watched(),
            windows,
            defaultDialog};
  }

  // What the user does in the next showing, and that showing.
  void Show(std::function<void()> acts) {
    user.acts = std::move(acts);
    control->ShowFilter(true);
    user.acts = nullptr;
  }
  void Tick() { control->Timer1.Elapse(); }
  frmFilter& Dialog() { return control->Dialog(); }

  ClockFake clock;
  EnUsConversions conversions{clock};
  ScriptedUser user;
  AnsweredBoxes prompts;
  VersionInfoFake version;
  MemoryWindowSystem windows;
  DefaultDialog defaultDialog{{user, prompts, conversions, clock}};
  Ref<MemoryListView> list = MakeRef<MemoryListView>();
  Ref<MemoryListView> otherList = MakeRef<MemoryListView>();
  ListeningHost before{list};  // hears of everything before the banner does
  MemoryListWindow window{windows, *list};
  ListeningHost after{list};
  MemoryListWindow otherWindow{windows, *otherList};
  std::unique_ptr<TSLvwBannerFilter> control = std::make_unique<TSLvwBannerFilter>(Services());
};

}  // namespace sifter
