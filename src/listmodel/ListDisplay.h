#pragma once

#include <cstdint>
#include <vector>

namespace sifter {

class RowHandle;

// What a write to a row of a MemoryListView has changed.
enum class RowChange {
  kText,  // of the row or one of its cells
  kLook,  // colour or bold of the row or one of its cells
  kIcon,
  kCellIcon,
  kToolTip,  // of the row or one of its cells
  kChecked,
  kGhosted,
};

// What shows a MemoryListView on a screen: a window with its columns and rows. The list owns it
// and tells it of every change at the moment at which the notice of that change is due (see
// ListMessage), behind the list's observers; a window makes the notice by being sent the message.
//
// The list may be changed and the window may go while the display is at work. Positions are
// 1-based. An error of InsertRow or InsertColumn keeps the row or column out of the list; errors
// of the other members come out of the list's own.
class ListDisplay {
 public:
  virtual ~ListDisplay() = default;

  virtual void InsertRow(const RowHandle& row) = 0;
  virtual void RemoveRow(const RowHandle& row) = 0;
  virtual void RemoveAllRows() = 0;

  // These come when the change has been made.
  virtual void RowChanged(const RowHandle& row, RowChange change) = 0;
  virtual void RowsReordered(const std::vector<std::int32_t>& order) = 0;  // old positions

  virtual void InsertColumn(std::int32_t position, double width) = 0;
  virtual void RemoveColumn(std::int32_t position) = 0;

  // These come when the change has been made.
  virtual void ColumnChanged(std::int32_t position) = 0;  // text, alignment or icon
  virtual void ColumnResized(std::int32_t position, double width) = 0;

  // The width that a column has now, where the user may have changed the one it was given.
  virtual double ColumnWidth(std::int32_t position, double given) const = 0;

  // Gives what shows the list the input focus.
  virtual void SetFocus() {}

  virtual void BeginUpdate() noexcept = 0;
  virtual void EndUpdate() noexcept = 0;
};

}  // namespace sifter
