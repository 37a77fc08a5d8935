#include "main_window.h"

#include <QStatusBar>

#include "model/game_state.h"

namespace mf::app {

MainWindow::MainWindow() {
  setWindowTitle("Marrowfield");
  resize(1024, 768);
  status_ = new QLabel(this);
  status_->setText(QString("Editing  %1 x %2").arg(Game.MapW).arg(Game.MapH));
  statusBar()->addWidget(status_);
}

}  // namespace mf::app
