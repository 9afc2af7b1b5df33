#pragma once

#include <oaidl.h>
#include <unknwn.h>
#include <windows.h>

namespace sifter {

// How the rows of a list of our own get from one module of a process into another: from a host that
// links the list-view object to the component, each with a heap of its own. Only plain data,
// VARIANTs and interfaces cross, and nobody frees what is the other's. Pointers are good until the
// call that carries them returns.
//
// A caller that has no use for it goes by the members of the object instead, with the same effect:
// one notice for every row, in the same order, at the same moment.

inline constexpr IID kRowTransferSourceId = {
    0x483c4633, 0x4c3f, 0x466a, {0xa3, 0xe9, 0xba, 0xa2, 0x5a, 0x69, 0x5f, 0xe0}};
inline constexpr IID kRowTransferId = {
    0xb8a0482d, 0x8ec9, 0x4441, {0xb2, 0xdd, 0x89, 0x47, 0x07, 0x32, 0x38, 0xb1}};

struct TransferText {
  const char16_t* units;
  ULONG length;  // in code units
};

// What a cell has beyond its text.
struct TransferCell {
  TransferText key;
  TransferText tag;
  TransferText toolTipText;
  VARIANT reportIcon;
  LONG foreColor;
  BOOL bold;
};

// A row with all its attributes.
struct TransferRow {
  ULONG cells;                // the columns behind the first
  const TransferText* texts;  // cells + 1; the first one is the row's own
  TransferText key;
  TransferText tag;
  TransferText toolTipText;
  VARIANT icon;
  VARIANT smallIcon;
  LONG foreColor;
  BOOL bold;
  BOOL checked;
  BOOL ghosted;
  const TransferCell* extras;  // of all cells; null when no cell has more than its text ...
  LONG cellForeColor;          // ... and this colour
};

// A list at one moment.
struct TransferState {
  ULONGLONG version;  // grows with every change of the rows
  LONG rows;
  LONG columns;
  BOOL takesRows;  // whether an appended row would stand at the end
};

// Takes rows one by one. It is borrowed; a failure ends the reading.
struct IRowSink {
  virtual HRESULT STDMETHODCALLTYPE TakeRow(ULONG token, const TransferRow* row) = 0;
};

// One caller's connection to the rows of a list. Every row that has gone through it has a token,
// which stands for the row as it was then: a row that is changed is another row with another token.
// A row that the caller has once seen crosses as its token from then on, until the caller forgets
// it.
struct IRowTransfer : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetState(TransferState* state) = 0;

  // The tokens of all rows in order; `capacity` must be at least the number of rows.
  virtual HRESULT STDMETHODCALLTYPE GetTokens(ULONG* tokens, ULONG capacity, ULONG* count) = 0;

  virtual HRESULT STDMETHODCALLTYPE ReadRows(const ULONG* tokens, ULONG count, IRowSink* sink) = 0;

  // Appends a row as it stands, and gives it a token. Its key must be free and the list must take
  // rows.
  virtual HRESULT STDMETHODCALLTYPE AppendRow(const TransferRow* row, ULONG* token,
                                              TransferState* after) = 0;
  virtual HRESULT STDMETHODCALLTYPE AppendKnownRow(ULONG token, TransferState* after) = 0;

  // Removes the rows at these positions, from the last to the first. Ascending, from 1.
  virtual HRESULT STDMETHODCALLTYPE RemoveRows(const LONG* positions, ULONG count,
                                               TransferState* after) = 0;

  virtual HRESULT STDMETHODCALLTYPE ForgetRows(const ULONG* tokens, ULONG count) = 0;

  // Bracket a long change; the brackets nest.
  virtual HRESULT STDMETHODCALLTYPE BeginUpdate() = 0;
  virtual HRESULT STDMETHODCALLTYPE EndUpdate() = 0;
};

// What a list's object answers for when it has its rows to transfer.
struct IRowTransferSource : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE OpenTransfer(IRowTransfer** transfer) = 0;
};

}  // namespace sifter
