// The Info dialog's window: a unit type's name and price over its class and
// abilities, with a button that copies them as text.
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "engine/type_info_dialog.h"
#include "editor_views.h"
#include "view_text.h"

namespace mf::app {
namespace {

void ShowTypeInfo(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::TypeInfoDialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("infoDialog");
  window.setWindowTitle(Q(dialog->caption));
  window.resize(360, 420);
  auto* layout = new QVBoxLayout(&window);
  auto* title = new QLabel(Q(dialog->caption), &window);
  title->setObjectName("title");
  QFont bold = title->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.3);
  title->setFont(bold);
  layout->addWidget(title);
  auto* list = NewReportList(&window);
  list->setObjectName("lines");
  FillList(list, dialog->lines, -1);
  layout->addWidget(list, 1);
  auto* buttons = new QHBoxLayout();
  auto* copy = new QPushButton("Copy as Text", &window);
  copy->setObjectName("copy");
  auto* close = new QPushButton(mf::TypeInfoDialog::kClose, &window);
  close->setObjectName("close");
  close->setDefault(true);
  buttons->addWidget(copy);
  buttons->addStretch(1);
  buttons->addWidget(close);
  layout->addLayout(buttons);
  QObject::connect(copy, &QPushButton::clicked, &window,
                   [dialog] { QApplication::clipboard()->setText(Q(dialog->Text())); });
  QObject::connect(close, &QPushButton::clicked, &window, [dialog, &window] {
    dialog->CloseButton();
    window.accept();
  });
  RunDialogWindow(window, *dialog, [dialog] { dialog->CloseButton(); });
}

}  // namespace

void RegisterTypeInfoView() { RegisterDialogView("info", &ShowTypeInfo); }

}  // namespace mf::app
