#include "newunit_view.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "orders/new_units.h"

namespace mf::app {
namespace {

using Dialog = mf::NewUnitDialog;

void ShowNewUnit(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<Dialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("newUnitDialog");
  window.setWindowTitle(Dialog::kCaption);
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(new QLabel(Dialog::kCaption, &window));

  // One button per kind of unit, its price in its caption.
  static const char* const kNames[Dialog::kKinds] = {"land", "navy", "air", "thq", "shq"};
  for (int k = 0; k < Dialog::kKinds; ++k) {
    auto* b = new QPushButton(QString::fromStdString(dialog->caption[k]), &window);
    b->setObjectName(kNames[k]);
    b->setEnabled(dialog->enabled[k]);
    b->setMinimumWidth(220);
    layout->addWidget(b);
    // Making the unit may ask for its name; the dialog is closed by then.
    QObject::connect(b, &QPushButton::clicked, &window, [dialog, k, &window] {
      std::string why;
      dialog->Make(k, &why);
      if (!dialog->IsOpen()) window.accept();
    });
  }
  auto* cancel = new QPushButton(Dialog::kCancel, &window);
  cancel->setObjectName("cancel");
  layout->addWidget(cancel);
  QObject::connect(cancel, &QPushButton::clicked, &window, [dialog, &window] {
    std::string why;
    dialog->Cancel(&why);
    window.accept();
  });

  // Esc and the frame's close button cancel.
  RunDialogWindow(window, *dialog, [dialog] {
    std::string why;
    dialog->Cancel(&why);
  });
}

}  // namespace

void RegisterNewUnitView() { RegisterDialogView("newunit", &ShowNewUnit); }

}  // namespace mf::app
