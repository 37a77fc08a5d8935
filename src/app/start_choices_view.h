// What the start dialogs' windows (Start Game and Random Scenario) share:
// the five switch boxes, which each window lays out in its own groups, the
// regime rows, a row a regime with its name, its "Human" box and its e-mail
// box, and the Cancel and start buttons at the bottom.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "engine/start_choices.h"

class QBoxLayout;
class QCheckBox;
class QDialog;
class QGridLayout;
class QPushButton;
class QLabel;
class QLineEdit;
class QWidget;

namespace mf::app {

// Cancel and the start button, the window's default, at the right of a new
// row at the bottom of `layout`. Cancel rejects the window (the view's
// close then cancels the dialog); what the start button does is the view's.
QPushButton* AddStartButtons(QDialog* window, QBoxLayout* layout, const QString& cancelCaption,
                             const QString& startCaption);

struct SwitchBoxes {
  QCheckBox* fog = nullptr;
  QCheckBox* exploration = nullptr;
  QCheckBox* pbem = nullptr;
  QCheckBox* passwords = nullptr;
  QCheckBox* aiBonus = nullptr;

  // Shows the dialog's switches; no box signals while it is set.
  void Show(const mf::StartChoices& dialog) const;
  // A box clicked sets its switch in the dialog; then `refresh` shows what
  // the dialog made of it (a box may pull another with it).
  void ConnectTo(QWidget* window, mf::StartChoices* dialog, const std::function<void()>& refresh) const;
};

class RegimeRowsView {
 public:
  // Rows 1..count of `grid`, at grid rows 1..count (row 0 is left for
  // column headings). `emailLength` caps what the e-mail boxes take; 0
  // leaves them uncapped.
  RegimeRowsView(QWidget* window, QGridLayout* grid, int count, const QString& humanLabel, int emailLength);

  // Shows the dialog's rows (1-based): hidden rows hide their boxes, and no
  // box signals while it is set. An e-mail box is set only when its text
  // differs from the dialog's, so that the cursor of someone typing stays.
  void Show(const mf::RegimeRow* rows);

  // A "Human" box clicked sets the row's player in the dialog and then
  // `refresh` shows it (a ban on the computer puts the box back); an e-mail
  // typed goes to the dialog as each letter comes.
  void ConnectTo(QWidget* window, mf::StartChoices* dialog, const std::function<void()>& refresh) const;

 private:
  int count_;
  std::vector<QLabel*> names_;  // 1-based, as the rows
  std::vector<QCheckBox*> humans_;
  std::vector<QLineEdit*> emails_;
};

}  // namespace mf::app
