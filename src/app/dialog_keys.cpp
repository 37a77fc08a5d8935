#include "dialog_keys.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

namespace mf::app {
namespace {

// Presses the main button on Enter or Space arriving at a widget of the
// dialog that does not type them.
class MainActionKeys : public QObject {
 public:
  MainActionKeys(QDialog* dialog, QPushButton* main) : QObject(dialog), main_(main) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!enter && key != Qt::Key_Space) return false;
    // Text boxes and choosers keep these keys; what they leave unused comes
    // back here through the dialog.
    if (qobject_cast<QLineEdit*>(watched) || qobject_cast<QTextEdit*>(watched) ||
        qobject_cast<QPlainTextEdit*>(watched) || qobject_cast<QAbstractSpinBox*>(watched) ||
        qobject_cast<QComboBox*>(watched))
      return false;
    if (!main_ || !main_->isVisible() || !main_->isEnabled()) return false;
    main_->click();
    return true;
  }

 private:
  QPointer<QPushButton> main_;
};

}  // namespace

void SetMainAction(QDialog* dialog, QPushButton* main) {
  auto* keys = new MainActionKeys(dialog, main);
  dialog->installEventFilter(keys);
  for (QWidget* w : dialog->findChildren<QWidget*>()) {
    w->installEventFilter(keys);
    if (auto* b = qobject_cast<QPushButton*>(w)) {
      // A button that had the focus would otherwise become the default.
      b->setAutoDefault(false);
      b->setDefault(false);
    }
  }
  main->setDefault(true);
  main->setFocus(Qt::OtherFocusReason);
}

}  // namespace mf::app
