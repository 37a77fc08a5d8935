// The platform of tests and marrowfield-cli: every message box and prompt is
// recorded (and handed to an optional printer as it happens), prompts and
// questions are answered from a queue, file dialogs from their own queue,
// and dialogs are driven by queued actions or their default action.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace mf {

struct PlatformEvent {
  enum Kind { kMessage, kQuestion, kPrompt, kFileDialog, kDialogAction, kSound, kAnalysis, kReport, kColor } kind = kMessage;
  std::string title;
  std::string text;
  std::string answer;  // "yes"/"no" for questions, the text for prompts, the path for file dialogs
};

// One queued action for a dialog: "proceed", or "type" with value "12".
struct DialogAction {
  std::string action;
  std::string value;
};

class ScriptedPlatform : public Platform {
 public:
  void ShowMessage(const std::string& text, const std::string& title) override;
  bool AskYesNo(const std::string& text, const std::string& title) override;
  std::string InputPrompt(const std::string& text, const std::string& title,
                          const std::string& defaultText) override;
  void PlaySound(int slot) override;
  void YieldEvents() override {}
  void SleepMs(int) override {}
  void SetBusy(bool) override {}
  std::string OpenFileDialog(const std::string& title, const std::string& filter,
                             const std::string& startDir) override;
  std::string SaveFileDialog(const std::string& title, const std::string& filter,
                             const std::string& startDir) override;
  void RunDialog(HumbleDialog& dialog) override;
  unsigned TickCount() override { return ticks_ += 10; }
  // Keeps the line (see AnalysisLines) and hands it to the printer.
  void AnalysisLine(const std::string& line) override;
  // Each line of a report becomes one event, printed as "REPORT <line>".
  void ShowReport(const std::vector<std::string>& lines) override;
  // The colour picker takes the next queued answer: a colour as "#rrggbb"
  // (or six hexadecimal digits), or anything else, "cancel" among them, as
  // a cancelled picker. With nothing queued it is cancelled.
  bool PickColor(long* rgb) override;

  // Answers for the next message boxes and prompts, in order: "yes", "no",
  // "ok", "cancel", or any text (for prompts). A question with nothing queued
  // is answered "no"; a prompt with nothing queued takes its default.
  void QueueAnswer(const std::string& answer) { answers_.push_back(answer); }
  // An answer for the very next message box or prompt, ahead of those queued.
  void QueueAnswerFirst(const std::string& answer) { answers_.push_front(answer); }
  // Paths for the next file dialogs; "" cancels.
  void QueueFile(const std::string& path) { files_.push_back(path); }
  // Actions for the next opening of a dialog by name.
  void QueueDialog(const std::string& name, std::vector<DialogAction> actions) {
    dialogs_[name].push_back(std::move(actions));
  }
  std::size_t PendingAnswers() const { return answers_.size(); }

  const std::vector<PlatformEvent>& Events() const { return events_; }
  // Texts of the message boxes (OK and Yes/No) seen so far.
  std::vector<std::string> Messages() const;
  std::vector<int> Sounds() const { return sounds_; }
  // The computer player's analysis log lines written so far, oldest first.
  const std::vector<std::string>& AnalysisLines() const { return analysis_; }
  // Whether AnalysisLines keeps the lines; a long headless game that only
  // prints them can turn the keeping off.
  bool keepAnalysis = true;
  void Clear();

  // Called with each event as it happens (the CLI prints them).
  std::function<void(const PlatformEvent&)> printer;
  // Set when a dialog action failed; the CLI turns it into a failed script.
  std::string lastError;

 private:
  void Record(PlatformEvent e);
  std::deque<std::string> answers_;
  std::deque<std::string> files_;
  std::map<std::string, std::deque<std::vector<DialogAction>>> dialogs_;
  std::vector<PlatformEvent> events_;
  std::vector<int> sounds_;
  std::vector<std::string> analysis_;
  unsigned ticks_ = 0;
};

// Formats an event the way marrowfield-cli prints it:
// "MSG [title] text", "ASK [title] text -> answer", "AI line".
std::string FormatEvent(const PlatformEvent& e);

}  // namespace mf
