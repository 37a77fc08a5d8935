// The Status dialog's window: the report list and its four buttons, with a
// button that copies the report as text.
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "view/status_dialog.h"
#include "editor_views.h"
#include "view_text.h"

namespace mf::app {
namespace {

void ShowStatus(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::StatusDialog*>(&humble);
  if (!dialog) return;
  using D = mf::StatusDialog;
  QDialog window(parent);
  window.setObjectName("statusDialog");
  window.setWindowTitle(D::kCaption);
  window.resize(720, 520);
  auto* layout = new QVBoxLayout(&window);
  auto* list = NewReportList(&window);
  list->setObjectName("report");
  layout->addWidget(list, 1);

  auto* buttons = new QHBoxLayout();
  auto* hex = new QPushButton(D::kHexButton, &window);
  hex->setObjectName("hex");
  auto* oob = new QPushButton(D::kOobButton, &window);
  oob->setObjectName("oob");
  auto* supply = new QPushButton(D::kSupplyButton, &window);
  supply->setObjectName("supply");
  auto* copy = new QPushButton("Copy as Text", &window);
  copy->setObjectName("copy");
  auto* exitButton = new QPushButton(D::kExitButton, &window);
  exitButton->setObjectName("exit");
  for (QPushButton* b : {hex, oob, supply, copy}) buttons->addWidget(b);
  buttons->addStretch(1);
  buttons->addWidget(exitButton);
  layout->addLayout(buttons);

  auto refresh = [=, &window] {
    FillList(list, dialog->lines, -1);
    if (!dialog->IsOpen()) window.accept();
  };
  OnPress(hex, &window, refresh, [dialog] { dialog->HexButton(); });
  OnPress(oob, &window, refresh, [dialog] { dialog->OobButton(); });
  OnPress(supply, &window, refresh, [dialog] { dialog->SupplyButton(); });
  OnPress(exitButton, &window, refresh, [dialog] { dialog->ExitButton(); });
  OnPress(copy, &window, refresh, [dialog] { QApplication::clipboard()->setText(Q(dialog->Text())); });
  refresh();
  // Esc and the frame's close button leave as the exit button does.
  RunDialogWindow(window, *dialog, [dialog] { dialog->ExitButton(); });
}

}  // namespace

void RegisterStatusView() { RegisterDialogView("status", &ShowStatus); }

}  // namespace mf::app
