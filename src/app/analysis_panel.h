// The computer player's analysis log beside the map: every line its stages
// write, appended turn after turn. Lines can be selected (click, shift- and
// control-click) and copied with Ctrl+C or the context menu.
#pragma once

#include <QListWidget>
#include <string>

namespace mf::app {

class AnalysisPanel : public QListWidget {
 public:
  explicit AnalysisPanel(QWidget* parent = nullptr);

  // Appends one line and keeps the newest in sight unless the reader has
  // scrolled up to look at older ones.
  void Append(const std::string& line);
  // The selected lines, one per line of text, in the order of the log.
  QString SelectedText() const;
  // Puts the selected lines (or, with nothing selected, the whole log) on
  // the clipboard.
  void CopySelection();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace mf::app
