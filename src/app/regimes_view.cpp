// The Regimes dialog's window: the regime list with its boxes on the left
// half, the people editor with its name lists on the right half.
#include <QCheckBox>
#include <QColorDialog>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "editor/regimes_dialog.h"
#include "editor_views.h"
#include "view_text.h"

namespace mf::app {
namespace {

void ShowRegimes(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::RegimesDialog*>(&humble);
  if (!dialog) return;
  using D = mf::RegimesDialog;
  QDialog window(parent);
  window.setObjectName("regimesDialog");
  window.setWindowTitle(D::kCaption);
  window.resize(900, 600);
  auto* layout = new QHBoxLayout(&window);

  auto* regimeBox = new QGroupBox("Regimes", &window);
  auto* regimeLayout = new QVBoxLayout(regimeBox);
  auto* regimes = new QListWidget(regimeBox);
  regimes->setObjectName("regimes");
  regimeLayout->addWidget(regimes, 1);
  auto* regimeButtons = new QHBoxLayout();
  auto* newRegime = new QPushButton(D::kNew, regimeBox);
  newRegime->setObjectName("new");
  auto* del = new QPushButton(D::kDelete, regimeBox);
  del->setObjectName("delete");
  regimeButtons->addWidget(newRegime);
  regimeButtons->addWidget(del);
  regimeLayout->addLayout(regimeButtons);
  auto* form = new QFormLayout();
  auto box = [regimeBox](const char* name) {
    auto* e = new QLineEdit(regimeBox);
    e->setObjectName(name);
    return e;
  };
  QLineEdit* name = box("name");
  QLineEdit* hexColor = box("hexcolor");
  QLineEdit* people = box("people");
  QLineEdit* pp = box("pp");
  QLineEdit* formation = box("formation");
  QLineEdit* email = box("email");
  QLineEdit* sets = box("sets");
  QLineEdit* intro = box("intro");
  auto* peopleName = new QLabel(regimeBox);
  auto* ai = new QCheckBox("Computer player", regimeBox);
  ai->setObjectName("ai");
  auto* colour = new QPushButton(D::kColour, regimeBox);
  colour->setObjectName("colour");
  auto* colourText = new QLabel(regimeBox);
  colourText->setObjectName("colourText");
  form->addRow("Name (max 13):", name);
  form->addRow("Hex colour (1-15):", hexColor);
  form->addRow("People:", people);
  form->addRow("", peopleName);
  form->addRow("Political points:", pp);
  form->addRow("Formation noun:", formation);
  form->addRow("E-mail:", email);
  form->addRow("Portrait set (1-6):", sets);
  form->addRow("Briefing:", intro);
  form->addRow(ai);
  form->addRow(colour, colourText);
  regimeLayout->addLayout(form);
  layout->addWidget(regimeBox, 1);

  auto* peopleBox = new QGroupBox("Peoples", &window);
  auto* peopleLayout = new QVBoxLayout(peopleBox);
  auto* peoples = new QListWidget(peopleBox);
  peoples->setObjectName("peoples");
  peoples->setMaximumHeight(140);
  peopleLayout->addWidget(peoples);
  auto* newPeople = new QPushButton(D::kNewPeople, peopleBox);
  newPeople->setObjectName("newpeople");
  peopleLayout->addWidget(newPeople);
  auto* peopleForm = new QFormLayout();
  auto* pName = new QLineEdit(peopleBox);
  pName->setObjectName("peoplename");
  auto* overrule = new QLineEdit(peopleBox);
  overrule->setObjectName("overrule");
  peopleForm->addRow("Name:", pName);
  peopleForm->addRow("Urban sprite (811-830):", overrule);
  peopleLayout->addLayout(peopleForm);
  auto* names = new QHBoxLayout();
  auto* first = new QListWidget(peopleBox);
  first->setObjectName("firstnames");
  auto* last = new QListWidget(peopleBox);
  last->setObjectName("lastnames");
  for (QListWidget* l : {first, last}) l->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
  names->addWidget(first);
  names->addWidget(last);
  peopleLayout->addWidget(new QLabel("First names and last names (double click to edit):", peopleBox));
  peopleLayout->addLayout(names, 1);
  auto* close = new QPushButton(D::kClose, peopleBox);
  close->setObjectName("close");
  peopleLayout->addWidget(close);
  layout->addWidget(peopleBox, 1);

  auto fillNames = [](QListWidget* list, const std::vector<std::string>& rows) {
    const QSignalBlocker block(list);
    if (list->count() != static_cast<int>(rows.size())) {
      list->clear();
      for (std::size_t i = 0; i < rows.size(); ++i) {
        auto* item = new QListWidgetItem(Q(rows[i]), list);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
      }
    }
    for (int i = 0; i < list->count(); ++i)
      if (list->item(i)->text() != Q(rows[static_cast<std::size_t>(i)])) list->item(i)->setText(Q(rows[static_cast<std::size_t>(i)]));
  };
  std::vector<QWidget*> regimeEdits{name, hexColor, people, pp, formation, email, sets, intro, ai, colour};
  std::vector<QWidget*> peopleEdits{pName, overrule, first, last};
  auto refresh = [=, &window] {
    FillList(regimes, dialog->regimeRows, dialog->regimeRow);
    ShowValue(name, dialog->nameValue);
    ShowValue(hexColor, dialog->hexColorValue);
    ShowValue(people, dialog->peopleValue);
    peopleName->setText(Q(dialog->peopleName));
    ShowValue(pp, dialog->ppValue);
    ShowValue(formation, dialog->formationValue);
    ShowValue(email, dialog->emailValue);
    ShowValue(sets, dialog->setsValue);
    ShowValue(intro, dialog->introValue);
    {
      const QSignalBlocker block(ai);
      ai->setChecked(dialog->aiValue);
    }
    colourText->setText(Q(dialog->textColorValue));
    for (QWidget* w : regimeEdits) w->setEnabled(dialog->selected != 0);
    FillList(peoples, dialog->peopleRows, dialog->peopleRow);
    ShowValue(pName, dialog->peopleNameValue);
    ShowValue(overrule, dialog->overruleValue);
    fillNames(first, dialog->firstNames);
    fillNames(last, dialog->lastNames);
    for (QWidget* w : peopleEdits) w->setEnabled(dialog->selectedPeople != 0);
    if (!dialog->IsOpen()) window.accept();
  };
  OnPress(newRegime, &window, refresh, [dialog] { dialog->NewButton(); });
  OnPress(del, &window, refresh, [dialog] { dialog->DeleteButton(); });
  OnPress(colour, &window, refresh, [dialog] { dialog->ColourButton(); });
  OnPress(newPeople, &window, refresh, [dialog] { dialog->NewPeopleButton(); });
  OnPress(close, &window, refresh, [dialog] { dialog->CloseButton(); });
  OnEdited(name, &window, refresh, [dialog](const std::string& v) { dialog->SetName(v); });
  OnEdited(hexColor, &window, refresh, [dialog](const std::string& v) { dialog->SetHexColor(v); });
  OnEdited(people, &window, refresh, [dialog](const std::string& v) { dialog->SetPeople(v); });
  OnEdited(pp, &window, refresh, [dialog](const std::string& v) { dialog->SetPP(v); });
  OnEdited(formation, &window, refresh, [dialog](const std::string& v) { dialog->SetFormation(v); });
  OnEdited(email, &window, refresh, [dialog](const std::string& v) { dialog->SetEmail(v); });
  OnEdited(sets, &window, refresh, [dialog](const std::string& v) { dialog->SetPortraitSets(v); });
  OnEdited(intro, &window, refresh, [dialog](const std::string& v) { dialog->SetIntro(v); });
  OnEdited(pName, &window, refresh, [dialog](const std::string& v) { dialog->SetPeopleName(v); });
  OnEdited(overrule, &window, refresh, [dialog](const std::string& v) { dialog->SetOverrule(v); });
  QObject::connect(ai, &QCheckBox::toggled, &window, [dialog, refresh](bool on) {
    dialog->SetAI(on);
    refresh();
  });
  OnRowPicked(regimes, &window, refresh, [dialog](int row, std::string* why) { dialog->Select(row + 1, why); });
  OnRowPicked(peoples, &window, refresh, [dialog](int row, std::string* why) { dialog->SelectPeople(row + 1, why); });
  QObject::connect(first, &QListWidget::itemChanged, &window, [dialog, first](QListWidgetItem* item) {
    dialog->SetFirstName(first->row(item) + 1, item->text().toStdString());
  });
  QObject::connect(last, &QListWidget::itemChanged, &window, [dialog, last](QListWidgetItem* item) {
    dialog->SetLastName(last->row(item) + 1, item->text().toStdString());
  });
  refresh();
  RunDialogWindow(window, *dialog, [dialog] { dialog->CloseButton(); });
}

}  // namespace

void RegisterRegimesView() { RegisterDialogView("regimes", &ShowRegimes); }

}  // namespace mf::app
