#include "analysis_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QScrollBar>
#include <algorithm>
#include <vector>

namespace mf::app {

AnalysisPanel::AnalysisPanel(QWidget* parent) : QListWidget(parent) {
  setObjectName("aiLog");
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setFocusPolicy(Qt::ClickFocus);
  setUniformItemSizes(true);
  setToolTip("The computer player's analysis. F11 shows and hides it; Ctrl+C copies the selected lines.");
}

void AnalysisPanel::Append(const std::string& line) {
  QScrollBar* bar = verticalScrollBar();
  const bool atEnd = bar->value() >= bar->maximum();
  addItem(QString::fromStdString(line));
  if (atEnd) scrollToBottom();
}

QString AnalysisPanel::SelectedText() const {
  std::vector<int> rows;
  for (const QListWidgetItem* item : selectedItems()) rows.push_back(row(item));
  std::sort(rows.begin(), rows.end());
  QStringList lines;
  for (int r : rows) lines << item(r)->text();
  return lines.join('\n');
}

void AnalysisPanel::CopySelection() {
  QString text = SelectedText();
  if (selectedItems().isEmpty()) {
    QStringList lines;
    for (int r = 0; r < count(); ++r) lines << item(r)->text();
    text = lines.join('\n');
  }
  QApplication::clipboard()->setText(text);
}

void AnalysisPanel::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    CopySelection();
    return;
  }
  QListWidget::keyPressEvent(event);
}

void AnalysisPanel::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  QAction* copy = menu.addAction(selectedItems().isEmpty() ? "Copy all" : "Copy");
  QAction* all = menu.addAction("Select all");
  QAction* chosen = menu.exec(event->globalPos());
  if (chosen == copy) CopySelection();
  if (chosen == all) selectAll();
}

}  // namespace mf::app
