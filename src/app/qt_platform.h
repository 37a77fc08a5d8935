// The windowed platform: message boxes, prompts, file dialogs, sound and the
// busy pointer of the Qt program, and the game's dialogs through their views.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/platform.h"

class QSoundEffect;

namespace mf::app {

// "Marrowfield (.mf1) files|*.mf1|Hidden Campaign Files|*.mf2" as a Qt filter:
// "Marrowfield (.mf1) files (*.mf1);;Hidden Campaign Files (*.mf2)". Patterns
// joined by ";" become blank-separated.
QString QtFileFilter(const std::string& gameFilter);

class QtPlatform : public mf::Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;

  // The window dialogs are modal over; nullptr until the main window exists.
  void SetParentWindow(QWidget* parent) { parent_ = parent; }

  void ShowMessage(const std::string& text, const std::string& title) override;
  bool AskYesNo(const std::string& text, const std::string& title) override;
  std::string InputPrompt(const std::string& text, const std::string& title,
                          const std::string& defaultText) override;
  void PlaySound(int slot) override;
  void YieldEvents() override;
  void SleepMs(int ms) override;
  void SetBusy(bool busy) override;
  std::string OpenFileDialog(const std::string& title, const std::string& filter,
                             const std::string& startDir) override;
  std::string SaveFileDialog(const std::string& title, const std::string& filter,
                             const std::string& startDir) override;
  void RunDialog(mf::HumbleDialog& dialog) override;
  unsigned TickCount() override;

  bool MouseButtonDown() override;
  // Each line of the computer player's analysis goes to the sink (the main
  // window's analysis list) as it is written.
  void AnalysisLine(const std::string& line) override {
    if (analysisSink_) analysisSink_(line);
  }
  void SetAnalysisSink(std::function<void(const std::string&)> sink) { analysisSink_ = std::move(sink); }
  // The native colour picker; unattended it takes a queued "#rrggbb" answer
  // (anything else, or nothing queued, is a cancel).
  bool PickColor(long* rgb) override;

  // Unattended: nobody sits at the screen (a screenshot run, the GUI tests).
  // Message boxes are written to the error stream and recorded instead of
  // shown, questions and prompts take queued answers (else "no" and the
  // default), file dialogs take queued paths (else cancel), and dialogs take
  // their default action.
  void SetUnattended(bool on) { unattended_ = on; }
  bool Unattended() const { return unattended_; }
  void QueueAnswer(const std::string& answer) { answers_.push_back(answer); }
  void QueueFile(const std::string& path) { files_.push_back(path); }
  // Texts of the message boxes and questions met while unattended.
  const std::vector<std::string>& Messages() const { return messages_; }

  // Runs before any dialog of the game comes up, with its name: the main
  // window brings itself up to date there, so that nothing stale (the last
  // player's map, header or formation) stands behind the dialog.
  void SetBeforeDialog(std::function<void(const std::string&)> f) { beforeDialog_ = std::move(f); }
  // Runs after that, attended or not (the tests look at the window there).
  void SetDialogWatcher(std::function<void(const std::string&)> f) { dialogWatcher_ = std::move(f); }

  bool Busy() const { return busy_; }
  // Number of sounds started (tests look at it; no device needed).
  int SoundsStarted() const { return soundsStarted_; }

 private:
  std::string NextAnswer(const std::string& fallback);
  void Note(const std::string& kind, const std::string& title, const std::string& text,
            const std::string& answer);

  QPointer<QWidget> parent_;
  std::function<void(const std::string&)> analysisSink_;
  bool unattended_ = false;
  std::deque<std::string> answers_;
  std::deque<std::string> files_;
  std::vector<std::string> messages_;
  bool busy_ = false;
  bool audioChecked_ = false;
  bool audioAvailable_ = false;
  int soundsStarted_ = 0;
  std::map<std::string, QSoundEffect*> effects_;  // by file path, owned
  std::function<void(const std::string&)> beforeDialog_;
  std::function<void(const std::string&)> dialogWatcher_;
};

}  // namespace mf::app
