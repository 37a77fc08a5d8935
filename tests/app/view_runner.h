// What the GUI tests share: running one dialog view and finding its window
// once it is up, acting in it, keeping a picture of it for a person to look
// at, reading the texts the window shows, and waiting for what the window's
// timer or a queued call brings.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QThread>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "dialog_views.h"

namespace mf::app::test {

// Lets the window's events run until `done` holds, for `ms` milliseconds at
// the most; false when it never came. A test waits this way for what the
// timer or a queued call brings, never for a fixed number of event rounds or
// a fixed sleep, which a busy machine can outrun.
inline bool WaitUntil(const std::function<bool()>& done, int ms = 10000) {
  QElapsedTimer clock;
  clock.start();
  while (!done()) {
    if (clock.elapsed() >= ms) return false;
    QApplication::processEvents(QEventLoop::AllEvents, 20);
    QThread::msleep(5);
  }
  return true;
}

// Lets the window's events run for `ms` milliseconds, for a test that shows
// nothing happens in that time.
inline void LetEventsRun(int ms) { WaitUntil([] { return false; }, ms); }

// The visible dialog window with that object name, or nullptr.
inline QDialog* VisibleDialog(const char* name) {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    auto* d = qobject_cast<QDialog*>(w);
    if (d && d->isVisible() && d->objectName() == name) return d;
  }
  return nullptr;
}

// The text of the label with that object name under `root`, or a text that
// says it is missing (which no expected text equals).
inline QString LabelText(QWidget* root, const char* name) {
  auto* l = root->findChild<QLabel*>(name);
  return l ? l->text() : QString("<no label %1>").arg(name);
}

// Keeps a picture of a dialog window in the build folder.
inline void KeepPicture(QWidget* d, const char* file) {
  const std::filesystem::path dir(MF_SCREENSHOT_DIR);
  std::filesystem::create_directories(dir);
  const QImage shot = d->grab().toImage();
  ASSERT_FALSE(shot.isNull());
  EXPECT_TRUE(shot.save(QString::fromStdString((dir / file).string()), "PNG"));
}

// Calls `inside` once the dialog window `windowName` is up: a window may be
// built and shown a moment after the view starts, so it is looked for every
// 10 ms. After two seconds a window still missing is a failure, and a window
// still open is closed, so that a failure cannot hang the suite.
inline void WhenDialogUp(QWidget* parent, const char* windowName, const std::function<void(QDialog*)>& inside,
                         bool* ran) {
  auto* poll = new QTimer(parent);
  auto* clock = new QElapsedTimer();
  clock->start();
  QObject::connect(poll, &QTimer::timeout, parent, [=] {
    QDialog* d = VisibleDialog(windowName);
    if (!d && clock->elapsed() < 2000) return;
    poll->stop();
    poll->deleteLater();
    delete clock;
    if (!d) {
      ADD_FAILURE() << windowName << " never opened";
      return;
    }
    *ran = true;
    inside(d);
    QTimer::singleShot(2000, parent, [windowName] {
      if (QDialog* still = VisibleDialog(windowName)) {
        ADD_FAILURE() << windowName << " was still open";
        still->done(0);
      }
    });
  });
  poll->start(10);
}

// Runs the registered view of a dialog over `parent`; `inside` runs once its
// window `windowName` is up.
inline void RunDialogView(mf::HumbleDialog& dialog, QWidget* parent, const char* windowName,
                          const std::function<void(QDialog*)>& inside) {
  bool ran = false;
  WhenDialogUp(parent, windowName, inside, &ran);
  auto view = FindDialogView(dialog.DialogName());
  ASSERT_TRUE(static_cast<bool>(view)) << dialog.DialogName();
  view(dialog, parent);
  EXPECT_TRUE(ran);
}

}  // namespace mf::app::test
