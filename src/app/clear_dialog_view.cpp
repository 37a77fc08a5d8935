#include "clear_dialog_view.h"

#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialog_keys.h"
#include "dialog_views.h"
#include "model/clear_dialog.h"

namespace mf::app {
namespace {

void ShowClearDialog(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::ClearDialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("clearDialog");
  window.setWindowTitle(mf::ClearDialog::kCaption);
  auto* layout = new QVBoxLayout(&window);
  auto* form = new QFormLayout();
  auto* width = new QLineEdit(QString::fromStdString(dialog->widthText), &window);
  width->setObjectName("mapWidth");
  auto* height = new QLineEdit(QString::fromStdString(dialog->heightText), &window);
  height->setObjectName("mapHeight");
  form->addRow(mf::ClearDialog::kWidthLabel, width);
  form->addRow(mf::ClearDialog::kHeightLabel, height);
  layout->addLayout(form);
  layout->addWidget(new QLabel(mf::ClearDialog::kNote, &window));
  auto* makeItSo = new QPushButton(mf::ClearDialog::kMakeItSo, &window);
  makeItSo->setObjectName("makeItSo");
  makeItSo->setDefault(true);
  layout->addWidget(makeItSo);
  QObject::connect(width, &QLineEdit::textChanged, &window,
                   [dialog](const QString& t) { dialog->widthText = t.toStdString(); });
  QObject::connect(height, &QLineEdit::textChanged, &window,
                   [dialog](const QString& t) { dialog->heightText = t.toStdString(); });
  QObject::connect(makeItSo, &QPushButton::clicked, &window, [dialog, &window] {
    dialog->MakeItSoPressed();
    window.accept();
  });
  SetMainAction(&window, makeItSo);
  // Closed by its frame: nothing is cleared.
  RunDialogWindow(window, *dialog, [dialog] { dialog->Cancel(); });
}

}  // namespace

void RegisterClearDialogView() { RegisterDialogView("clear", &ShowClearDialog); }

}  // namespace mf::app
