#include "filterdialog/CriterionRows.h"

#include "base/RuntimeError.h"
#include "base/Value.h"
#include "matching/Operators.h"
#include "matching/ParameterInput.h"

#include <memory>
#include <utility>

namespace sifter {

namespace {

// Where the controls of a row stand in the frame, as designed.
constexpr double kTop = 240;
constexpr double kHeight = 315;
constexpr double kLabelLeft = 120, kLabelWidth = 2160;
constexpr double kOperatorLeft = 2340, kOperatorWidth = 1860;
constexpr double kFirstLeft = 4320, kFieldWidth = 2220;
constexpr double kAndLeft = 6600, kAndWidth = 420;
constexpr double kSecondLeft = 7080;
constexpr double kCriteriaWidth = kSecondLeft + kFieldWidth - kFirstLeft;

template <class T>
std::unique_ptr<T> Place(std::unique_ptr<T> control, Frame& frame, double left, double width) {
  control->SetContainer(&frame);
  control->Move(left, kTop, width, kHeight);
  control->SetVisible(false);
  return control;
}

auto Labels(ControlParent& form, Frame& frame, TextView name, TextView caption, bool draggable,
            double left, double width) {
  return [=, &form, &frame, name = Text(name), caption = Text(caption)](std::int16_t index) {
    auto label = Place(std::make_unique<Label>(form, name, index), frame, left, width);
    label->SetCaption(caption);
    label->SetDraggable(draggable);
    return label;
  };
}

auto Combos(ControlParent& form, Frame& frame, ComboStyle style, TextView name, double left,
            double width) {
  return [=, &form, &frame, name = Text(name)](std::int16_t index) {
    return Place(std::make_unique<ComboBox>(form, style, name, index), frame, left, width);
  };
}

auto Boxes(ControlParent& form, Frame& frame, TextView name, double left) {
  return [=, &form, &frame, name = Text(name)](std::int16_t index) {
    auto box = Place(std::make_unique<TextBox>(form, name, index), frame, left, kFieldWidth);
    box->InputFilter = IsReferenceInTheMaking;
    return box;
  };
}

auto Pickers(ControlParent& form, Frame& frame, const Clock& clock, TextView name, double left) {
  return [=, &form, &frame, &clock, name = Text(name)](std::int16_t index) {
    auto picker = Place(std::make_unique<DatePicker>(form, name, index), frame, left, kFieldWidth);
    picker->SetValue(clock.Today());
    return picker;
  };
}

}  // namespace

CriterionRows::CriterionRows(ControlParent& form, Frame& frame, const Clock& clock)
    : lblColumnHeaderText(
          Labels(form, frame, u"lblColumnHeaderText", u"", true, kLabelLeft, kLabelWidth)),
      cboOperator(Combos(form, frame, ComboStyle::kDropDownList, u"cboOperator", kOperatorLeft,
                         kOperatorWidth)),
      cboCriteria(
          Combos(form, frame, ComboStyle::kDropDown, u"cboCriteria", kFirstLeft, kCriteriaWidth)),
      txtFrom(Boxes(form, frame, u"txtFrom", kFirstLeft)),
      txtTo(Boxes(form, frame, u"txtTo", kSecondLeft)),
      dtpFrom(Pickers(form, frame, clock, u"dtpFrom", kFirstLeft)),
      dtpTo(Pickers(form, frame, clock, u"dtpTo", kSecondLeft)),
      lblAnd(Labels(form, frame, u"lblAnd", u"and", false, kAndLeft, kAndWidth)),
      frame_(frame),
      clock_(clock) {}

void CriterionRows::Load(std::int32_t i) {
  if (i == 0) return;
  lblColumnHeaderText.Load();
  cboOperator.Load();
  cboCriteria.Load();
  txtFrom.Load();
  txtTo.Load();
  dtpFrom.Load();
  dtpTo.Load();
  lblAnd.Load();
}

void CriterionRows::PutBack(TextBox& box, double left) {
  box.SetContainer(&frame_);
  box.SetBorderStyle(BorderStyle::kSingle);
  box.SetBackColor(kWindowBackground);
  box.SetLocked(false);
  box.SetText(Text());
  box.SetVisible(false);
  box.Move(left, kTop, kFieldWidth, kHeight);
}

void CriterionRows::RemoveRows() {
  lblColumnHeaderText.UnloadAllButFirst();
  cboOperator.UnloadAllButFirst();
  cboCriteria.UnloadAllButFirst();
  txtFrom.UnloadAllButFirst();
  txtTo.UnloadAllButFirst();
  dtpFrom.UnloadAllButFirst();
  dtpTo.UnloadAllButFirst();
  lblAnd.UnloadAllButFirst();

  HideParameters(0);
  lblColumnHeaderText[0].SetVisible(false);
  lblColumnHeaderText[0].SetCaption(Text());
  lblColumnHeaderText[0].SetTag(Text());
  cboOperator[0].SetVisible(false);
  cboOperator[0].Clear();
  cboCriteria[0].Clear();
  cboCriteria[0].SetText(Text());
  PutBack(txtFrom[0], kFirstLeft);
  PutBack(txtTo[0], kSecondLeft);
  dtpFrom[0].SetValue(clock_.Today());
  dtpTo[0].SetValue(clock_.Today());
}

void CriterionRows::Build(std::int32_t i, const Text& caption, std::int32_t dataType) {
  const double top = lblColumnHeaderText[0].Top() + i * kRowPitch;
  Label& label = lblColumnHeaderText[i];
  label.SetCaption(caption);
  label.SetTop(top);
  label.SetVisible(true);
  label.SetTag(IntegerToText(dataType));

  ComboBox& operators = cboOperator[i];
  operators.Clear();
  operators.SetTop(top);
  operators.SetVisible(true);
  operators.SetEntries(OperatorWords(dataType));
  operators.SetText(Text(kAllWord));

  cboCriteria[i].SetText(Text());
  cboCriteria[i].SetTop(top);
  for (DatePicker* picker : {&dtpFrom[i], &dtpTo[i]}) {
    picker->SetTop(top);
    picker->SetVisible(false);
  }
  lblAnd[i].SetTop(top);
  lblAnd[i].SetVisible(false);

  for (auto [box, picker] : {std::pair(&txtFrom[i], &dtpFrom[i]), std::pair(&txtTo[i], &dtpTo[i])})
    if (dataType == static_cast<std::int32_t>(ColumnDataType::kDate)) {
      box->SetLocked(true);
      picker->Move(box->Left(), top, box->Width(), box->Height());
      EmbedTextInPicker(*picker, *box);
    } else {
      box->SetTop(top);
    }
}

void CriterionRows::HideParameters(std::int32_t i) {
  cboCriteria[i].SetVisible(false);
  txtFrom[i].SetVisible(false);
  txtTo[i].SetVisible(false);
  lblAnd[i].SetVisible(false);
  dtpFrom[i].SetVisible(false);
  dtpTo[i].SetVisible(false);
}

std::int32_t CriterionRows::DataType(std::int32_t i) const {
  return ValueToInt32(Value(lblColumnHeaderText[i].Tag()));
}

FilterCriterion CriterionRows::Criterion(std::int32_t i) const {
  return FilterCriterion{
      .caption = lblColumnHeaderText[i].Caption(),
      .dataType = DataType(i),
      .operatorWord = cboOperator[i].Text(),
      .text = cboCriteria[i].Text(),
      .from = txtFrom[i].Text(),
      .to = txtTo[i].Text(),
      .dateFrom = dtpFrom[i].Value(),
      .dateTo = dtpTo[i].Value(),
  };
}

void EmbedTextInPicker(DatePicker& picker, TextBox& box) {
  box.SetBorderStyle(BorderStyle::kNone);
  box.SetBackColor(picker.BackColor());
  box.SetContainer(&picker);
  box.Move(0, 0, picker.Width(), picker.Height());
}

}  // namespace sifter
