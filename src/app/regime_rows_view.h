// The regime rows of the start dialogs' windows (Start Game and Random
// Scenario): a row a regime with its name, its "Human" box and its e-mail
// box, built, shown and wired the same way in both.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "engine/start_rows.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QWidget;

namespace mf::app {

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

  // A "Human" box clicked runs `human(row, on)` and then `refresh`; an
  // e-mail typed runs `email(row, text)` as each letter comes.
  void Connect(QWidget* window, const std::function<void(int, bool)>& human,
               const std::function<void(int, const std::string&)>& email, const std::function<void()>& refresh);

  // Connects the boxes to a dialog's SetHuman and SetEmail.
  template <class Dialog>
  void ConnectTo(QWidget* window, Dialog* dialog, const std::function<void()>& refresh) {
    Connect(
        window,
        [dialog](int row, bool on) {
          std::string why;
          dialog->SetHuman(row, on, &why);
        },
        [dialog](int row, const std::string& text) {
          std::string why;
          dialog->SetEmail(row, text, &why);
        },
        refresh);
  }

 private:
  int count_;
  std::vector<QLabel*> names_;  // 1-based, as the rows
  std::vector<QCheckBox*> humans_;
  std::vector<QLineEdit*> emails_;
};

}  // namespace mf::app
