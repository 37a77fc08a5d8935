#pragma once

#include <QLabel>
#include <QMainWindow>

namespace mf::app {

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  MainWindow();

 private:
  QLabel* status_ = nullptr;
};

}  // namespace mf::app
