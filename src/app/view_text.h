// Small helpers the dialog views share for showing core's texts and lists.
#pragma once

#include <QListWidget>
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

}  // namespace mf::app
