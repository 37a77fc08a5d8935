// The Types dialog's window: the filtered list of unit types on the left,
// the selected type's boxes, abilities and production lines on the right.
#include <QDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "editor/types_dialog.h"
#include "editor_views.h"
#include "model/labels.h"
#include "view_text.h"

namespace mf::app {
namespace {

void ShowTypes(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::TypesDialog*>(&humble);
  if (!dialog) return;
  using D = mf::TypesDialog;
  QDialog window(parent);
  window.setObjectName("typesDialog");
  window.setWindowTitle(D::kCaption);
  window.resize(900, 640);
  auto* layout = new QHBoxLayout(&window);

  // Left: the filter box, the list and the list's buttons.
  auto* left = new QVBoxLayout();
  auto* filter = new QLineEdit(&window);
  filter->setObjectName("filter");
  filter->setPlaceholderText("Filter by name or number");
  filter->setClearButtonEnabled(true);
  auto* list = new QListWidget(&window);
  list->setObjectName("types");
  left->addWidget(filter);
  left->addWidget(list, 1);
  auto* listButtons = new QGridLayout();
  auto* newButton = new QPushButton(D::kNew, &window);
  newButton->setObjectName("new");
  auto* del = new QPushButton(D::kDelete, &window);
  del->setObjectName("delete");
  auto* copy = new QPushButton(D::kCopy, &window);
  copy->setObjectName("copy");
  auto* info = new QPushButton(D::kInfo, &window);
  info->setObjectName("info");
  listButtons->addWidget(newButton, 0, 0);
  listButtons->addWidget(del, 0, 1);
  listButtons->addWidget(copy, 1, 0);
  listButtons->addWidget(info, 1, 1);
  left->addLayout(listButtons);
  layout->addLayout(left, 2);

  // Middle: the boxes of the selected type.
  auto* middle = new QVBoxLayout();
  auto* number = new QLabel(&window);
  number->setObjectName("number");
  middle->addWidget(number);
  auto* form = new QFormLayout();
  auto* name = new QLineEdit(&window);
  name->setObjectName("name");
  auto* theater = new QLineEdit(&window);
  theater->setObjectName("theater");
  auto* cls = new QLineEdit(&window);
  cls->setObjectName("class");
  auto* classLabel = new QLabel(&window);
  classLabel->setObjectName("classLabel");
  auto* cost = new QLineEdit(&window);
  cost->setObjectName("cost");
  auto* research = new QLineEdit(&window);
  research->setObjectName("research");
  auto* text = new QLineEdit(&window);
  text->setObjectName("text");
  form->addRow("Name:", name);
  form->addRow("Theater (0 land, 1 sea, 2 air):", theater);
  form->addRow("Class (1-4):", cls);
  form->addRow("", classLabel);
  form->addRow("Cost:", cost);
  form->addRow("Research field:", research);
  form->addRow("Text:", text);
  middle->addLayout(form);
  auto* pictures = new QHBoxLayout();
  auto* sprite = new QPushButton(D::kSprite, &window);
  sprite->setObjectName("sprite");
  auto* spriteLabel = new QLabel(&window);
  spriteLabel->setObjectName("spriteLabel");
  auto* override = new QPushButton(D::kOverride, &window);
  override->setObjectName("override");
  auto* overrideLabel = new QLabel(&window);
  overrideLabel->setObjectName("overrideLabel");
  pictures->addWidget(sprite);
  pictures->addWidget(spriteLabel);
  pictures->addWidget(override);
  pictures->addWidget(overrideLabel);
  middle->addLayout(pictures);
  auto* researchLine = new QLabel(&window);
  researchLine->setObjectName("researchLine");
  middle->addWidget(researchLine);
  auto* living = new QListWidget(&window);
  living->setObjectName("living");
  auto* owning = new QListWidget(&window);
  owning->setObjectName("owning");
  middle->addWidget(new QLabel(D::kLivingTitle, &window));
  middle->addWidget(living, 1);
  middle->addWidget(new QLabel(D::kOwningTitle, &window));
  middle->addWidget(owning, 1);
  layout->addLayout(middle, 2);

  // Right: the twenty abilities, each a box; a refused value springs back.
  auto* right = new QVBoxLayout();
  auto* attrs = new QGroupBox("Abilities", &window);
  auto* attrForm = new QFormLayout(attrs);
  std::vector<QLineEdit*> attrBoxes;
  for (int a = 1; a <= 20; ++a) {
    auto* box = new QLineEdit(attrs);
    box->setObjectName(QString("attr%1").arg(a));
    box->setMaximumWidth(90);
    attrForm->addRow(Q(mf::TypeAttrLabel(a)) + ":", box);
    attrBoxes.push_back(box);
  }
  right->addWidget(attrs);
  right->addStretch(1);
  auto* close = new QPushButton(D::kClose, &window);
  close->setObjectName("close");
  right->addWidget(close);
  layout->addLayout(right, 1);

  std::vector<QWidget*> editing{name, theater, cls, cost, research, text, sprite, override, copy, info, living, owning};
  for (QLineEdit* b : attrBoxes) editing.push_back(b);

  auto refresh = [=, &window] {
    FillList(list, dialog->rows, dialog->row);
    number->setText(Q(dialog->numberLabel));
    ShowValue(name, dialog->nameValue);
    ShowValue(theater, dialog->selected ? std::to_string(dialog->theater) : "");
    ShowValue(cls, dialog->selected ? std::to_string(dialog->typeClass) : "");
    classLabel->setText(Q(dialog->classLabel));
    ShowValue(cost, dialog->costValue);
    ShowValue(research, dialog->researchValue);
    ShowValue(text, dialog->textValue);
    spriteLabel->setText(Q(dialog->spriteLabel));
    overrideLabel->setText(Q(dialog->overrideLabel));
    researchLine->setText(Q(dialog->researchLine));
    FillList(living, dialog->livingRows, -1);
    FillList(owning, dialog->owningRows, -1);
    for (int a = 1; a <= 20; ++a) {
      const bool has = a <= static_cast<int>(dialog->attrValues.size());
      ShowValue(attrBoxes[a - 1], has ? std::to_string(dialog->attrValues[a - 1]) : std::string());
    }
    for (QWidget* w : editing) w->setEnabled(dialog->selected != 0);
    if (!dialog->IsOpen()) window.accept();
  };
  OnPress(newButton, &window, refresh, [dialog] { dialog->NewButton(); });
  OnPress(del, &window, refresh, [dialog] { dialog->DeleteButton(); });
  OnPress(copy, &window, refresh, [dialog] { dialog->CopyButton(); });
  OnPress(info, &window, refresh, [dialog] { dialog->InfoButton(); });
  OnPress(sprite, &window, refresh, [dialog] { dialog->SpriteButton(); });
  OnPress(override, &window, refresh, [dialog] { dialog->OverrideButton(); });
  OnPress(close, &window, refresh, [dialog] { dialog->CloseButton(); });
  OnEdited(name, &window, refresh, [dialog](const std::string& v) { dialog->SetName(v); });
  OnEdited(theater, &window, refresh, [dialog](const std::string& v) { dialog->SetTheater(v); });
  OnEdited(cls, &window, refresh, [dialog](const std::string& v) { dialog->SetClass(v); });
  OnEdited(cost, &window, refresh, [dialog](const std::string& v) { dialog->SetCost(v); });
  OnEdited(research, &window, refresh, [dialog](const std::string& v) { dialog->SetResearch(v); });
  OnEdited(text, &window, refresh, [dialog](const std::string& v) { dialog->SetText(v); });
  for (int a = 1; a <= 20; ++a)
    OnEdited(attrBoxes[a - 1], &window, refresh, [dialog, a](const std::string& v) { dialog->SetAttr(a, v); });
  QObject::connect(filter, &QLineEdit::textChanged, &window, [dialog, refresh](const QString& t) {
    dialog->SetFilter(t.toStdString());
    refresh();
  });
  OnRowPicked(list, &window, refresh, [dialog](int row, std::string* why) {
    if (row >= 0 && row < static_cast<int>(dialog->typeOfRow.size()))
      dialog->Select(dialog->typeOfRow[static_cast<std::size_t>(row)], why);
  });
  QObject::connect(living, &QListWidget::itemClicked, &window, [dialog, refresh, living](QListWidgetItem* item) {
    dialog->ToggleLiving(living->row(item) + 1);
    refresh();
  });
  QObject::connect(owning, &QListWidget::itemClicked, &window, [dialog, refresh, owning](QListWidgetItem* item) {
    dialog->ToggleOwning(owning->row(item) + 1);
    refresh();
  });
  refresh();
  RunDialogWindow(window, *dialog, [dialog] { dialog->CloseButton(); });
}

}  // namespace

void RegisterTypesView() { RegisterDialogView("types", &ShowTypes); }

}  // namespace mf::app
