#include "battle_view.h"
#include "view_text.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "combat/battle_window.h"
#include "dialog_views.h"

namespace mf::app {
namespace {


QWidget* MainWindow() {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->objectName() == "mainWindow") return w;
  return nullptr;
}

// The battle window stands on its own rather than as a child of the main
// window, which is disabled while the battle lasts and would take its
// children with it.
class BattleWindowView : public QDialog {
 public:
  BattleWindowView() : QDialog(nullptr) {
    setObjectName("battleDialog");
    setWindowTitle(Q(TheBattleWindow().caption));
    setMinimumSize(520, 560);
    auto* layout = new QVBoxLayout(this);
    log = new QListWidget(this);
    log->setObjectName("battleLog");
    // The log lines its figures up with blanks, so it wants even letters.
    log->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    log->setSelectionMode(QAbstractItemView::NoSelection);
    log->setFocusPolicy(Qt::NoFocus);
    layout->addWidget(log, 1);
    auto* bottom = new QHBoxLayout();
    status = new QLabel(this);
    status->setObjectName("battleStatus");
    ok = new QPushButton(Q(TheBattleWindow().okCaption), this);
    ok->setObjectName("battleOk");
    ok->setDefault(true);
    bottom->addWidget(status, 1);
    bottom->addWidget(ok);
    layout->addLayout(bottom);
    QObject::connect(ok, &QPushButton::clicked, this, [this] { Press("ok"); });
  }

  // Brings the window in line with the core's battle window.
  void Refresh() {
    const BattleWindow& w = TheBattleWindow();
    status->setText(Q(w.status));
    ok->setEnabled(w.okEnabled);
  }

  void AddLastLine() {
    const BattleWindow& w = TheBattleWindow();
    if (w.lines.empty()) return;
    log->addItem(Q(w.lines.back()));
    log->scrollToBottom();
  }

  void Clear() { log->clear(); }

  // Runs until the player has closed the finished battle.
  void Wait() {
    if (!TheBattleWindow().IsOpen()) return;
    ok->setFocus();
    QEventLoop loop;
    waiting = &loop;
    loop.exec();
    waiting = nullptr;
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Space) {
      Press("space");
      return;
    }
    QDialog::keyPressEvent(event);
  }
  // Closing the frame is not the way out of a battle; OK is.
  void reject() override {}

 private:
  void Press(const std::string& action) {
    BattleWindow& w = TheBattleWindow();
    std::string why;
    if (!w.Act(action, "", &why)) return;
    Refresh();
    if (waiting && !w.IsOpen()) waiting->quit();
  }

  QListWidget* log = nullptr;
  QLabel* status = nullptr;
  QPushButton* ok = nullptr;
  QEventLoop* waiting = nullptr;
};

QPointer<BattleWindowView>& View() {
  static QPointer<BattleWindowView> view;
  return view;
}

BattleWindowView* EnsureView() {
  if (!View()) View() = new BattleWindowView();
  return View();
}

void CentreOver(QWidget* window, QWidget* over) {
  window->adjustSize();
  QRect area = over ? over->frameGeometry() : QRect();
  if (area.isEmpty() && window->screen()) area = window->screen()->availableGeometry();
  window->move(area.center() - QPoint(window->width() / 2, window->height() / 2));
}

// Follows the battle as the core fights it.
void Follow(BattleWindowChange change) {
  const BattleWindow& w = TheBattleWindow();
  QWidget* main = MainWindow();
  switch (change) {
    case BattleWindowChange::kOpened: {
      if (main) main->setEnabled(w.mainWindowEnabled);
      if (!w.visible) return;
      BattleWindowView* view = EnsureView();
      view->Clear();
      view->Refresh();
      CentreOver(view, main);
      view->show();
      view->raise();
      return;
    }
    case BattleWindowChange::kLine:
      if (w.visible && View()) View()->AddLastLine();
      return;
    case BattleWindowChange::kFinished:
      if (View()) View()->Refresh();
      return;
    case BattleWindowChange::kClosed:
      if (View()) View()->hide();
      if (main) main->setEnabled(w.mainWindowEnabled);
      return;
  }
}

void ShowBattle(mf::HumbleDialog& humble, QWidget*) {
  if (!dynamic_cast<BattleWindow*>(&humble)) return;
  BattleWindowView* view = EnsureView();
  view->Refresh();
  if (!view->isVisible()) view->show();
  view->Wait();
}

}  // namespace

void RegisterBattleView() {
  RegisterDialogView("battle", &ShowBattle);
  SetBattleWindowHook(&Follow);
}

}  // namespace mf::app
