#include "qt_platform.h"
#include "view_text.h"

#include <QApplication>
#include <QColor>
#include <QColorDialog>
#include <QCursor>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QAudioDevice>
#include <QMediaDevices>
#include <QMessageBox>
#include <QSoundEffect>
#include <QStringList>
#include <QThread>
#include <QUrl>
#include <iostream>

#include "dialog_views.h"
#include "model/game_state.h"
#include "view/sprite_table.h"

namespace mf::app {
namespace {


QString Title(const std::string& title) { return Q(title.empty() ? std::string(mf::kProgramTitle) : title); }

QElapsedTimer& Clock() {
  static QElapsedTimer clock;
  if (!clock.isValid()) clock.start();
  return clock;
}

}  // namespace

QString QtFileFilter(const std::string& gameFilter) {
  const QStringList parts = Q(gameFilter).split('|');
  QStringList out;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(';', ' ');
    out << parts[i] + " (" + patterns + ")";
  }
  return out.join(";;");
}

QtPlatform::QtPlatform() { Clock(); }

std::string QtPlatform::NextAnswer(const std::string& fallback) {
  if (answers_.empty()) return fallback;
  std::string a = answers_.front();
  answers_.pop_front();
  return a;
}

void QtPlatform::Note(const std::string& kind, const std::string& title, const std::string& text,
                      const std::string& answer) {
  messages_.push_back(text);
  std::cerr << kind << " [" << (title.empty() ? std::string(mf::kProgramTitle) : title) << "] " << text;
  if (kind != "MSG") std::cerr << " -> " << answer;
  std::cerr << "\n";
}

bool QtPlatform::MouseButtonDown() { return QGuiApplication::mouseButtons() != Qt::NoButton; }

QtPlatform::~QtPlatform() {
  for (auto& [path, effect] : effects_) delete effect;
  if (busy_) QApplication::restoreOverrideCursor();
}

void QtPlatform::ShowMessage(const std::string& text, const std::string& title) {
  if (unattended_) {
    if (!answers_.empty() && answers_.front() == "ok") answers_.pop_front();
    Note("MSG", title, text, "");
    return;
  }
  QMessageBox box(QMessageBox::NoIcon, Title(title), Q(text), QMessageBox::Ok, parent_);
  box.exec();
}

bool QtPlatform::AskYesNo(const std::string& text, const std::string& title) {
  if (unattended_) {
    const std::string a = NextAnswer("no");
    Note("ASK", title, text, a);
    return a == "yes" || a == "ok";
  }
  QMessageBox box(QMessageBox::Question, Title(title), Q(text), QMessageBox::Yes | QMessageBox::No, parent_);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

std::string QtPlatform::InputPrompt(const std::string& text, const std::string& title,
                                    const std::string& defaultText) {
  if (unattended_) {
    std::string a = NextAnswer(defaultText);
    if (a == "cancel") a.clear();
    Note("ASK", title, text, a);
    return a;
  }
  bool ok = false;
  const QString answer = QInputDialog::getText(parent_, Title(title), Q(text), QLineEdit::Normal, Q(defaultText), &ok);
  // A cancelled prompt answers with an empty text, as the game expects.
  return ok ? answer.toStdString() : std::string();
}

void QtPlatform::PlaySound(int slot) {
  if (mf::UI.SoundOff != 0) return;
  const std::string& path = mf::SoundFile(slot);
  if (path.empty() || !QFileInfo::exists(Q(path))) return;
  if (!audioChecked_) {
    // Without an output device (a server, the offscreen tests) the game is
    // simply silent.
    audioChecked_ = true;
    audioAvailable_ = !QMediaDevices::audioOutputs().isEmpty();
  }
  if (!audioAvailable_) return;
  QSoundEffect*& effect = effects_[path];
  if (!effect) {
    effect = new QSoundEffect();
    effect->setSource(QUrl::fromLocalFile(Q(path)));
  }
  // Sounds play asynchronously: the effect starts and the game goes on.
  effect->play();
  ++soundsStarted_;
}

void QtPlatform::YieldEvents() { QCoreApplication::processEvents(); }

void QtPlatform::SleepMs(int ms) {
  // Keeps the window alive while the game pauses (battle log lines).
  QElapsedTimer t;
  t.start();
  while (t.elapsed() < ms) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QThread::msleep(1);
  }
}

void QtPlatform::SetBusy(bool busy) {
  if (busy == busy_) return;
  busy_ = busy;
  if (busy)
    QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
  else
    QApplication::restoreOverrideCursor();
}

std::string QtPlatform::OpenFileDialog(const std::string& title, const std::string& filter,
                                       const std::string& startDir) {
  if (unattended_) {
    if (files_.empty()) return std::string();
    std::string p = files_.front();
    files_.pop_front();
    return p;
  }
  const QString path = QFileDialog::getOpenFileName(parent_, Q(title), Q(startDir), QtFileFilter(filter));
  return path.toStdString();
}

std::string QtPlatform::SaveFileDialog(const std::string& title, const std::string& filter,
                                       const std::string& startDir) {
  if (unattended_) {
    if (files_.empty()) return std::string();
    std::string p = files_.front();
    files_.pop_front();
    return p;
  }
  // Qt's save dialog asks before overwriting a file.
  QString selected;
  QString path = QFileDialog::getSaveFileName(parent_, Q(title), Q(startDir), QtFileFilter(filter), &selected);
  if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty()) {
    // A name typed without extension gets the one of the chosen filter.
    path += selected.contains("*.mf2") ? ".mf2" : ".mf1";
  }
  return path.toStdString();
}

void QtPlatform::RunDialog(mf::HumbleDialog& dialog) {
  if (beforeDialog_) beforeDialog_(dialog.DialogName());
  if (dialogWatcher_) dialogWatcher_(dialog.DialogName());
  DialogViewFn view = unattended_ ? DialogViewFn() : FindDialogView(dialog.DialogName());
  if (view) {
    view(dialog, parent_);
    return;
  }
  // Unattended, or a dialog without a window of its own: it takes its
  // default action, as the scripted platform does, so the game never waits
  // on a window nobody shows.
  for (int guard = 0; dialog.IsOpen() && guard < 16; ++guard) {
    std::string why;
    if (!dialog.Act(dialog.DefaultAction(), "", &why)) break;
  }
}

bool QtPlatform::PickColor(long* rgb) {
  if (unattended_) {
    const std::string a = NextAnswer("cancel");
    const QColor c(QString::fromStdString(a));
    std::cerr << "COLOUR -> " << (c.isValid() ? a : std::string("cancel")) << "\n";
    if (!c.isValid()) return false;
    *rgb = (static_cast<long>(c.red()) << 16) | (c.green() << 8) | c.blue();
    return true;
  }
  const QColor c = QColorDialog::getColor(Qt::white, parent_, "Text Colour");
  if (!c.isValid()) return false;
  *rgb = (static_cast<long>(c.red()) << 16) | (c.green() << 8) | c.blue();
  return true;
}

unsigned QtPlatform::TickCount() { return static_cast<unsigned>(Clock().elapsed()); }

}  // namespace mf::app
