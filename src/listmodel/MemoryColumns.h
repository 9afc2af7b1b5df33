#pragma once

#include "listmodel/HostListView.h"
#include "listmodel/MemoryListView.h"

#include <cstdint>

namespace sifter {

// A column of a MemoryListView; goes on living for its holders when the list lets go of it.
class MemoryColumn final : public ColumnHeader {
 public:
  explicit MemoryColumn(MemoryListView* list) : list_(list) {}

  // The list lets go of the column.
  void Detach() { list_ = nullptr; }

  Value Index() const override;
  Value Key() const override { return key_; }
  Value Text() const override { return text_; }
  Value Width() const override;
  Value Alignment() const override { return alignment_; }
  Value Icon() const override { return icon_; }
  Value Tag() const override { return tag_; }
  void SetKey(const Value& key) override;
  void SetText(const Value& text) override { Set(text_, ValueToText(text)); }
  void SetWidth(const Value& width) override;
  void SetAlignment(const Value& alignment) override { Set(alignment_, ValueToInt32(alignment)); }
  void SetIcon(const Value& icon) override { Set(icon_, icon); }
  void SetTag(const Value& tag) override { tag_ = ValueToText(tag); }

  const sifter::Text& KeyText() const { return key_; }
  double GivenWidth() const { return width_; }

 private:
  // What a display shows of the column.
  template <class T>
  void Set(T& member, T value) {
    member = std::move(value);
    if (list_ != nullptr) list_->ColumnChanged(this);
  }

  MemoryListView* list_;
  sifter::Text key_;
  sifter::Text text_;
  double width_ = 0;
  std::int32_t alignment_ = 0;
  Value icon_;
  sifter::Text tag_;
};

// The columns of a MemoryListView.
class MemoryColumnHeaders final : public ColumnHeaderCollection {
 public:
  explicit MemoryColumnHeaders(MemoryListView* list) : list_(list) {}

  std::int32_t Count() const override;
  Ref<ColumnHeader> Item(const Value& positionOrKey) override;
  void Clear() override;
  Ref<ColumnHeader> Add(std::int32_t index, const Value& key, const Value& text, const Value& width,
                        const Value& alignment, const Value& icon) override;

 private:
  Ref<MemoryListView> list_;
};

}  // namespace sifter
