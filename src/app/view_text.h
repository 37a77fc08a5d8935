// Small helpers the dialog views share for showing core's texts and lists
// and for passing a person's presses and edits on to the dialog.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QObject>
#include <QPushButton>
#include <QSignalBlocker>
#include <QString>
#include <string>
#include <vector>

namespace mf::app {

// Core's UTF-8 text as a Qt string.
inline QString Q(const std::string& s) { return QString::fromStdString(s); }

// Shows a dialog's list rows with `current` selected (-1: none). Rows are
// rebuilt only when they changed, so that a click on a row never deletes the
// item it is being delivered to; no signal fires while the list is filled.
inline void FillList(QListWidget* list, const std::vector<std::string>& rows, int current) {
  const QSignalBlocker block(list);
  bool same = list->count() == static_cast<int>(rows.size());
  for (int i = 0; same && i < list->count(); ++i) same = list->item(i)->text() == Q(rows[static_cast<std::size_t>(i)]);
  if (!same) {
    list->clear();
    for (const auto& row : rows) list->addItem(Q(row));
  }
  list->setCurrentRow(current);
  if (current < 0) list->clearSelection();
}

// A box shows the dialog's value unless the person is typing in it; a value
// the dialog refused springs back. No signal fires while it is set.
inline void ShowValue(QLineEdit* edit, const std::string& value) {
  if (edit->hasFocus() && edit->isModified()) return;
  const QSignalBlocker block(edit);
  edit->setText(Q(value));
  edit->setModified(false);
}

// A press on `button` runs `action` on the dialog, then `refresh` shows the
// dialog as it is now (closing the window when the dialog has closed).
template <class Action, class Refresh>
void OnPress(QPushButton* button, QObject* context, Refresh refresh, Action action) {
  QObject::connect(button, &QPushButton::clicked, context, [action, refresh] {
    action();
    refresh();
  });
}

// A box the person has changed and left hands its text to `action` once;
// then `refresh` shows what the dialog made of it.
template <class Action, class Refresh>
void OnEdited(QLineEdit* edit, QObject* context, Refresh refresh, Action action) {
  QObject::connect(edit, &QLineEdit::editingFinished, context, [edit, action, refresh] {
    if (!edit->isModified()) return;
    edit->setModified(false);
    action(edit->text().toStdString());
    refresh();
  });
}

// A row made current in `list` (a click or an arrow key) hands its index to
// `action(row, &why)`, which picks that entry in the dialog; then `refresh`
// shows what the dialog picked. A refusal needs no word: the list shows only
// what the dialog holds. FillList sets the current row without a signal, so
// a refresh never picks again.
template <class Action, class Refresh>
void OnRowPicked(QListWidget* list, QObject* context, Refresh refresh, Action action) {
  QObject::connect(list, &QListWidget::currentRowChanged, context, [action, refresh](int row) {
    std::string why;
    action(row, &why);
    refresh();
  });
}

}  // namespace mf::app
