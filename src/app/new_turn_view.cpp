#include "new_turn_view.h"
#include "view_text.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "control/new_turn_dialog.h"
#include "dialog_keys.h"
#include "dialog_views.h"

namespace mf::app {
namespace {


// The New Turn dialog closes only by its own buttons: the player proceeds or
// leaves the game, never just closes the window.
class NewTurnWindow : public QDialog {
 public:
  explicit NewTurnWindow(QWidget* parent) : QDialog(parent) {}
  void reject() override {}
};

void ShowNewTurn(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::NewTurnDialog*>(&humble);
  if (!dialog) return;
  NewTurnWindow window(parent);
  window.setObjectName("newTurnDialog");
  window.setWindowTitle(Q(dialog->caption));
  window.setMinimumWidth(640);
  auto* layout = new QVBoxLayout(&window);

  // The report: headline, the three lists, the briefing.
  auto* report = new QWidget(&window);
  report->setObjectName("report");
  auto* reportLayout = new QVBoxLayout(report);
  reportLayout->setContentsMargins(0, 0, 0, 0);
  auto* headlineTitle = new QLabel(report);
  headlineTitle->setObjectName("headlineTitle");
  QFont big = headlineTitle->font();
  big.setBold(true);
  big.setPointSize(big.pointSize() + 4);
  headlineTitle->setFont(big);
  auto* headlineText = new QLabel(report);
  headlineText->setObjectName("headlineText");
  headlineText->setWordWrap(true);
  reportLayout->addWidget(headlineTitle);
  reportLayout->addWidget(headlineText);
  auto* lists = new QGridLayout();
  auto* news = new QListWidget(report);
  news->setObjectName("news");
  auto* losses = new QListWidget(report);
  losses->setObjectName("losses");
  auto* kills = new QListWidget(report);
  kills->setObjectName("kills");
  lists->addWidget(new QLabel(Q(dialog->newsTitle), report), 0, 0);
  lists->addWidget(new QLabel(Q(dialog->lossesTitle), report), 0, 1);
  lists->addWidget(new QLabel(Q(dialog->killsTitle), report), 0, 2);
  lists->addWidget(news, 1, 0);
  lists->addWidget(losses, 1, 1);
  lists->addWidget(kills, 1, 2);
  reportLayout->addLayout(lists);
  reportLayout->addWidget(new QLabel(Q(dialog->briefingTitle), report));
  auto* briefing = new QPlainTextEdit(report);
  briefing->setObjectName("briefing");
  briefing->setReadOnly(true);
  reportLayout->addWidget(briefing);
  layout->addWidget(report);

  // The password part.
  auto* passwordPart = new QWidget(&window);
  passwordPart->setObjectName("passwordPart");
  auto* passwordLayout = new QHBoxLayout(passwordPart);
  passwordLayout->setContentsMargins(0, 0, 0, 0);
  passwordLayout->addWidget(new QLabel(Q(dialog->passwordLabel), passwordPart));
  auto* password = new QLineEdit(passwordPart);
  password->setObjectName("password");
  password->setEchoMode(QLineEdit::Password);
  auto* passwordButton = new QPushButton(passwordPart);
  passwordButton->setObjectName("passwordButton");
  passwordLayout->addWidget(password, 1);
  passwordLayout->addWidget(passwordButton);
  layout->addWidget(passwordPart);

  // The buttons.
  auto* buttons = new QHBoxLayout();
  auto* pbem = new QPushButton(&window);
  pbem->setObjectName("savePbem");
  auto* exitGame = new QPushButton(Q(dialog->exitCaption), &window);
  exitGame->setObjectName("exitGame");
  auto* proceed = new QPushButton(&window);
  proceed->setObjectName("proceed");
  proceed->setDefault(true);
  buttons->addWidget(pbem);
  buttons->addStretch(1);
  buttons->addWidget(exitGame);
  buttons->addWidget(proceed);
  layout->addLayout(buttons);

  auto refresh = [=, &window] {
    report->setVisible(dialog->reportShown);
    headlineTitle->setText(Q(dialog->headlineTitle));
    headlineText->setText(Q(dialog->headlineText));
    FillList(news, dialog->newsRows, -1);
    FillList(losses, dialog->lossRows, -1);
    FillList(kills, dialog->killRows, -1);
    briefing->setPlainText(Q(dialog->briefing));
    passwordPart->setVisible(dialog->passwordShown);
    passwordButton->setText(Q(dialog->passwordButtonCaption));
    pbem->setVisible(dialog->pbemShown);
    pbem->setText(Q(dialog->pbemCaption));
    proceed->setText(Q(dialog->proceedCaption));
    if (!dialog->IsOpen()) window.accept();
  };
  // A refused button has already told the player why in a message box.
  QObject::connect(password, &QLineEdit::textChanged, &window,
                   [dialog](const QString& t) { dialog->SetPasswordText(t.toStdString()); });
  QObject::connect(passwordButton, &QPushButton::clicked, &window, [dialog, refresh] {
    std::string why;
    dialog->PasswordButton(&why);
    refresh();
  });
  QObject::connect(proceed, &QPushButton::clicked, &window, [dialog, refresh] {
    std::string why;
    dialog->ProceedButton(&why);
    refresh();
  });
  QObject::connect(pbem, &QPushButton::clicked, &window, [dialog, refresh] {
    std::string why;
    dialog->SavePbemButton("", &why);
    refresh();
  });
  QObject::connect(exitGame, &QPushButton::clicked, &window, [dialog, refresh] {
    std::string why;
    dialog->ExitButton(&why);
    refresh();
  });
  refresh();
  // Enter and Space start the turn, whichever button last had the focus;
  // with the password part up the password box takes the focus.
  SetMainAction(&window, proceed);
  if (dialog->passwordShown) password->setFocus(Qt::OtherFocusReason);

  // The turn changes hands under the busy pointer; the player reading his
  // report gets the ordinary one.
  RunDialogWindow(window, *dialog, {}, DialogPointer::kArrow);
}

}  // namespace

void RegisterNewTurnView() { RegisterDialogView("newturn", &ShowNewTurn); }

}  // namespace mf::app
