// The editor's painting tools beside the map: the regime box and button,
// the landscape list and its button, the urban button, and Ctrl+Z / Ctrl+Y
// for the strokes.
#pragma once

#include <QWidget>
#include <functional>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace mf::app {

class PaintPanel : public QWidget {
  Q_OBJECT
 public:
  // `run` runs a command of the player the way the window runs its own (the
  // window syncs afterwards). The shortcuts are installed on `shortcutHost`.
  PaintPanel(QWidget* parent, QWidget* shortcutHost, std::function<void(std::function<void()>)> run);

  // Shows the tools in the editor with its panel on, and the buttons'
  // captions as the brushes stand.
  void Sync();

 private:
  std::function<void(std::function<void()>)> run_;
  QLineEdit* regimeBox_ = nullptr;
  QPushButton* regime_ = nullptr;
  QListWidget* list_ = nullptr;
  QPushButton* type_ = nullptr;
  QPushButton* urban_ = nullptr;
};

}  // namespace mf::app
