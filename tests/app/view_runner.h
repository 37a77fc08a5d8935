// Running one dialog view inside a GUI test: find its window once it is up,
// act in it, keep a picture of it for a person to look at.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "dialog_views.h"

namespace mf::app::test {

// The visible dialog window with that object name, or nullptr.
inline QDialog* VisibleDialog(const char* name) {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    auto* d = qobject_cast<QDialog*>(w);
    if (d && d->isVisible() && d->objectName() == name) return d;
  }
  return nullptr;
}

// Keeps a picture of a dialog window in the build folder.
inline void KeepPicture(QWidget* d, const char* file) {
  const std::filesystem::path dir(MF_SCREENSHOT_DIR);
  std::filesystem::create_directories(dir);
  const QImage shot = d->grab().toImage();
  ASSERT_FALSE(shot.isNull());
  EXPECT_TRUE(shot.save(QString::fromStdString((dir / file).string()), "PNG"));
}

// Runs the registered view of a dialog over `parent`; `inside` runs once its
// window `windowName` is up. A window still open after two seconds is closed
// so that a failure cannot hang the suite.
inline void RunDialogView(mf::HumbleDialog& dialog, QWidget* parent, const char* windowName,
                          const std::function<void(QDialog*)>& inside) {
  bool ran = false;
  QTimer::singleShot(0, parent, [&] {
    QDialog* d = VisibleDialog(windowName);
    ran = true;
    ASSERT_NE(d, nullptr) << windowName;
    inside(d);
  });
  QTimer::singleShot(2000, parent, [&] {
    if (QDialog* d = VisibleDialog(windowName)) {
      ADD_FAILURE() << windowName << " was still open";
      d->done(0);
    }
  });
  auto view = FindDialogView(dialog.DialogName());
  ASSERT_TRUE(static_cast<bool>(view)) << dialog.DialogName();
  view(dialog, parent);
  EXPECT_TRUE(ran);
}

}  // namespace mf::app::test
