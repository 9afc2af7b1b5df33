#pragma once

#include "base/Clock.h"
#include "base/Text.h"
#include "forms/ComboBox.h"
#include "forms/ControlArray.h"
#include "forms/ControlParent.h"
#include "forms/DatePicker.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "matching/FilterCriterion.h"

#include <cstdint>

namespace sifter {

// What stands above the rows and around them.
struct DialogFrame {
  explicit DialogFrame(ControlParent& form)
      : lblCaption(form, u"lblCaption"), Frame1(form, u"Frame1") {}

  Label lblCaption;  // the prompt
  Frame Frame1;
};

// Twips from one row of the dialog to the next.
inline constexpr std::int32_t kRowPitch = 400;

// The rows of controls of the dialog: arrays that share one index, row k for column k + 1 of the
// list. Row 0 is there by design; it is hidden as long as no column has been built.
class CriterionRows {
 public:
  // The controls stand on `form`, in `frame`. `clock` gives the pickers their first date. All
  // three must outlive this object.
  CriterionRows(ControlParent& form, Frame& frame, const Clock& clock);

  ControlArray<Label> lblColumnHeaderText;
  ControlArray<ComboBox> cboOperator;
  ControlArray<ComboBox> cboCriteria;
  ControlArray<TextBox> txtFrom;
  ControlArray<TextBox> txtTo;
  ControlArray<DatePicker> dtpFrom;
  ControlArray<DatePicker> dtpTo;
  ControlArray<Label> lblAnd;

  // Takes all rows away but row 0 and puts that one back as designed: without texts, with today's
  // dates, its text boxes in the frame.
  void RemoveRows();

  // Adds the members of row `i` to the arrays unless it is row 0, which has them.
  void Load(std::int32_t i);

  // Fills in row `i` for a column.
  void Build(std::int32_t i, const Text& caption, std::int32_t dataType);

  // Hides what a row shows for its operator.
  void HideParameters(std::int32_t i);

  // The data type of a row, from its label's tag. A tag that is no number is error 13.
  std::int32_t DataType(std::int32_t i) const;

  // What the row holds for the engine.
  FilterCriterion Criterion(std::int32_t i) const;

 private:
  void PutBack(TextBox& box, double left);

  Frame& frame_;
  const Clock& clock_;
};

// Places the text box inside the picker, over its date but not over its drop-down button, so that
// a reference can be typed in the date's place. The box comes and goes with the picker from then
// on, and looks like part of it.
void EmbedTextInPicker(DatePicker& picker, TextBox& box);

}  // namespace sifter
