#include "start_game_view.h"
#include "view_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QCursor>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "dialog_keys.h"
#include "dialog_views.h"
#include "engine/start_game_dialog.h"
#include "start_choices_view.h"

namespace mf::app {
namespace {


void ShowStartGame(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::StartGameDialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("startGameDialog");
  window.setWindowTitle(Q(dialog->caption));
  auto* layout = new QVBoxLayout(&window);

  auto* story = new QPlainTextEdit(Q(dialog->story), &window);
  story->setObjectName("story");
  story->setReadOnly(true);
  layout->addWidget(story);

  auto* options = new QHBoxLayout();
  auto* game = new QGroupBox(Q(dialog->gameOptionsTitle), &window);
  auto* gameLayout = new QVBoxLayout(game);
  auto* pbem = new QCheckBox(Q(dialog->pbemLabel), game);
  pbem->setObjectName("pbem");
  auto* passwords = new QCheckBox(Q(dialog->passwordsLabel), game);
  passwords->setObjectName("passwords");
  auto* aiBonus = new QCheckBox(Q(dialog->aiBonusLabel), game);
  aiBonus->setObjectName("aiBonus");
  gameLayout->addWidget(pbem);
  gameLayout->addWidget(passwords);
  gameLayout->addWidget(aiBonus);
  auto* fogGroup = new QGroupBox(Q(dialog->fogOptionsTitle), &window);
  auto* fogLayout = new QVBoxLayout(fogGroup);
  auto* fog = new QCheckBox(Q(dialog->fogLabel), fogGroup);
  fog->setObjectName("fog");
  auto* exploration = new QCheckBox(Q(dialog->explorationLabel), fogGroup);
  exploration->setObjectName("exploration");
  fogLayout->addWidget(fog);
  fogLayout->addWidget(exploration);
  options->addWidget(game);
  options->addWidget(fogGroup);
  layout->addLayout(options);
  const SwitchBoxes switches{fog, exploration, pbem, passwords, aiBonus};

  // One row per regime: name, the "Human" choice, the e-mail address.
  auto* grid = new QGridLayout();
  grid->addWidget(new QLabel(Q(dialog->regimeColumn), &window), 0, 0);
  grid->addWidget(new QLabel(Q(dialog->playerColumn), &window), 0, 1);
  grid->addWidget(new QLabel(Q(dialog->emailColumn), &window), 0, 2);
  RegimeRowsView regimeRows(&window, grid, mf::kStartRows, Q(dialog->humanLabel), 0);
  RegimeRowsView* rowsView = &regimeRows;
  layout->addLayout(grid);

  QPushButton* start = AddStartButtons(&window, layout, Q(dialog->cancelCaption), Q(dialog->startCaption));

  // The dialog decides what each box ends up as (a box may pull another
  // with it, or refuse); the window only shows that.
  auto refresh = [=] {
    switches.Show(*dialog);
    rowsView->Show(dialog->rows);
  };
  switches.ConnectTo(&window, dialog, refresh);
  regimeRows.ConnectTo(&window, dialog, refresh);
  QObject::connect(start, &QPushButton::clicked, &window, [dialog, &window] {
    std::string why;
    // A refusal has shown its message; the dialog stays for the player to mend.
    if (dialog->StartButton(&why)) window.accept();
  });
  refresh();

  SetMainAction(&window, start);
  // Cancel, Esc and the frame's close all cancel.
  RunDialogWindow(window, *dialog, [dialog] { dialog->CancelButton(); }, DialogPointer::kArrow);
}

}  // namespace

void RegisterStartGameView() { RegisterDialogView("startgame", &ShowStartGame); }

}  // namespace mf::app
