// The Help menu's windows: "How to play", a page that explains the screen,
// the counters, the supply marks, an attack and the keys; and "About".
// Both stay open beside the game rather than holding it up.
#pragma once

#include <QDialog>
#include <QString>

namespace mf::app {

// The text of the "How to play" page (HTML).
QString HowToPlayText();
// The text of the "About" window (HTML).
QString AboutText();

// A window showing one of those texts, not modal.
class HelpWindow : public QDialog {
  Q_OBJECT
 public:
  HelpWindow(const QString& objectName, const QString& title, const QString& html, QWidget* parent);
};

}  // namespace mf::app
