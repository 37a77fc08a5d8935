#include "urban_production_view.h"
#include "view_text.h"

#include <QDialog>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "engine/urban_production_dialog.h"

namespace mf::app {
namespace {

using Dialog = mf::UrbanProductionDialog;


QLabel* Value(QWidget* parent, const char* name) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

// The system's fixed-pitch font; where the platform's choice is not really
// fixed, the first family the font database knows to be fixed.
QFont FixedPitchFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (QFontInfo(font).fixedPitch()) return font;
  for (const QString& family : QFontDatabase::families()) {
    if (QFontDatabase::isFixedPitch(family)) {
      font.setFamily(family);
      return font;
    }
  }
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  return font;
}

void ShowUrbanProduction(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<Dialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("urbanProductionDialog");
  window.setWindowTitle(Dialog::kCaption);
  auto* layout = new QVBoxLayout(&window);

  // What the town makes now, and for whom.
  auto* header = new QGridLayout();
  auto* town = Value(&window, "town");
  auto* prod = Value(&window, "prod");
  auto* shq = Value(&window, "shq");
  header->addWidget(new QLabel(Dialog::kTownLabel, &window), 0, 0);
  header->addWidget(town, 0, 1);
  header->addWidget(new QLabel(Dialog::kProdLabel, &window), 1, 0);
  header->addWidget(prod, 1, 1);
  header->addWidget(new QLabel(Dialog::kShqLabel, &window), 2, 0);
  header->addWidget(shq, 2, 1);
  header->setColumnStretch(1, 1);
  layout->addLayout(header);

  // The two lists side by side; the production rows are padded for a
  // fixed-pitch font so that the costs stand in one column.
  auto* lists = new QHBoxLayout();
  auto* left = new QVBoxLayout();
  left->addWidget(new QLabel(Dialog::kTypesTitle, &window));
  auto* types = new QListWidget(&window);
  types->setObjectName("types");
  types->setFont(FixedPitchFont());
  types->setMinimumWidth(260);
  left->addWidget(types, 1);
  auto* typeSelected = new QHBoxLayout();
  typeSelected->addWidget(new QLabel(Dialog::kSelectedLabel, &window));
  auto* selectedType = Value(&window, "selectedType");
  typeSelected->addWidget(selectedType, 1);
  left->addLayout(typeSelected);
  auto* estimateRow = new QHBoxLayout();
  estimateRow->addWidget(new QLabel(Dialog::kEstimateLabel, &window));
  auto* estimate = Value(&window, "estimate");
  estimateRow->addWidget(estimate, 1);
  left->addLayout(estimateRow);
  auto* changeProd = new QPushButton(Dialog::kChangeProd, &window);
  changeProd->setObjectName("changeProd");
  left->addWidget(changeProd);
  auto* info = new QPushButton(Dialog::kShowInfo, &window);
  info->setObjectName("info");
  left->addWidget(info);
  lists->addLayout(left, 1);

  auto* right = new QVBoxLayout();
  right->addWidget(new QLabel(Dialog::kShqsTitle, &window));
  auto* shqs = new QListWidget(&window);
  shqs->setObjectName("shqs");
  right->addWidget(shqs, 1);
  auto* shqSelected = new QHBoxLayout();
  shqSelected->addWidget(new QLabel(Dialog::kSelectedLabel, &window));
  auto* selectedShq = Value(&window, "selectedShq");
  shqSelected->addWidget(selectedShq, 1);
  right->addLayout(shqSelected);
  auto* changeShq = new QPushButton(Dialog::kChangeShq, &window);
  changeShq->setObjectName("changeShq");
  right->addWidget(changeShq);
  lists->addLayout(right, 1);
  layout->addLayout(lists, 1);

  auto* buttons = new QHBoxLayout();
  auto* pp = new QPushButton(Dialog::kProducePP, &window);
  pp->setObjectName("producePP");
  auto* supply = new QPushButton(Dialog::kProduceSupply, &window);
  supply->setObjectName("produceSupply");
  auto* close = new QPushButton(Dialog::kClose, &window);
  close->setObjectName("close");
  close->setDefault(true);
  buttons->addWidget(pp);
  buttons->addWidget(supply);
  buttons->addStretch(1);
  buttons->addWidget(close);
  layout->addLayout(buttons);

  auto refresh = [=, &window] {
    town->setText(Q(dialog->townText));
    prod->setText(Q(dialog->prodText));
    shq->setText(Q(dialog->shqText));
    selectedType->setText(Q(dialog->selectedType));
    estimate->setText(Q(dialog->estimate));
    selectedShq->setText(Q(dialog->selectedShq));
    changeProd->setEnabled(dialog->changeProdEnabled);
    changeShq->setEnabled(dialog->changeShqEnabled);
    info->setEnabled(dialog->infoEnabled);
    if (!dialog->IsOpen()) window.accept();
  };
  FillList(types, dialog->typeRows, dialog->typeRow);
  FillList(shqs, dialog->shqRows, dialog->shqRow);

  // A refused action leaves the dialog as it was; the enabled states keep
  // the buttons from asking for one.
  auto act = [refresh](auto action) {
    return [action, refresh] {
      std::string why;
      action(&why);
      refresh();
    };
  };
  QObject::connect(types, &QListWidget::currentRowChanged, &window, [dialog, refresh](int row) {
    std::string why;
    if (row >= 0) dialog->ClickTypeRow(row, &why);
    refresh();
  });
  QObject::connect(shqs, &QListWidget::currentRowChanged, &window, [dialog, refresh](int row) {
    std::string why;
    if (row >= 0) dialog->ClickShqRow(row, &why);
    refresh();
  });
  // A click on the row already highlighted on opening counts as a click too.
  QObject::connect(types, &QListWidget::itemClicked, &window, [dialog, types, refresh](QListWidgetItem*) {
    std::string why;
    dialog->ClickTypeRow(types->currentRow(), &why);
    refresh();
  });
  QObject::connect(shqs, &QListWidget::itemClicked, &window, [dialog, shqs, refresh](QListWidgetItem*) {
    std::string why;
    dialog->ClickShqRow(shqs->currentRow(), &why);
    refresh();
  });
  QObject::connect(changeProd, &QPushButton::clicked, &window,
                   act([dialog](std::string* why) { return dialog->ChangeProduction(why); }));
  QObject::connect(changeShq, &QPushButton::clicked, &window,
                   act([dialog](std::string* why) { return dialog->ChangeDelivery(why); }));
  QObject::connect(pp, &QPushButton::clicked, &window,
                   act([dialog](std::string* why) { return dialog->ProducePP(why); }));
  QObject::connect(supply, &QPushButton::clicked, &window,
                   act([dialog](std::string* why) { return dialog->ProduceSupply(why); }));
  QObject::connect(info, &QPushButton::clicked, &window,
                   act([dialog](std::string* why) { return dialog->ShowInfo(why); }));
  QObject::connect(close, &QPushButton::clicked, &window,
                   act([dialog](std::string* why) { return dialog->Close(why); }));
  refresh();

  // Closed by its frame: the close rule still applies.
  RunDialogWindow(window, *dialog, [dialog] {
    std::string why;
    dialog->Close(&why);
  });
}

}  // namespace

void RegisterUrbanProductionView() { RegisterDialogView("production", &ShowUrbanProduction); }

}  // namespace mf::app
