#pragma once

#include "User.h"

#include <string>
#include <vector>
#include <windows.h>

namespace sifter {

// The filter dialog as a user finds it on the screen. The user acts from inside a script of theirs.
class CriteriaDialog {
 public:
  explicit CriteriaDialog(User& user) : user_(user) {}

  // Its window, null while there is none to be seen.
  static HWND Window();
  // Waits for it, ten seconds at most.
  void Appears();
  // And until it is gone.
  void Goes();

  std::string Title() const;
  // Every text that can be seen on it, from the top to the bottom and from the left to the right.
  std::vector<std::string> Texts() const;

  // The fields of a row that can be seen, from the left to the right; the first is the operator.
  std::vector<HWND> Row(int row) const;
  HWND Operator(int row) const;
  HWND Value(int row, int place = 1) const;
  HWND Button(const std::string& caption) const;
  std::string TextOf(HWND field) const;
  int Rows() const;

  // What operator a row offers: "All|equals|...".
  std::string Operators(int row) const;

  // With the keyboard.
  void Picks(int row, const std::string& word);
  void Fills(int row, int place, const std::string& text);
  // With the mouse.
  void Clicks(const std::string& button);

  // Without keys and mouse.
  void FiltersByMessages(int row, const std::string& word, const std::string& text);
  void PressesByMessage(const std::string& button);

 private:
  User& user_;
};

// An operator, a text and Apply in the shortest way: by the messages that keys and mouse end in.
// The dialog may be another process's.
void FilterByMessages(HWND dialog, int row, const std::string& word, const std::string& text);

// The message box that stands before the user, null when there is none; and the texts on it, its
// title first.
HWND MessageBoxWindow();
std::vector<std::string> TextsOf(HWND messageBox);

}  // namespace sifter
