#include "research_view.h"
#include "view_text.h"

#include <QDialog>
#include <QFont>
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
#include "engine/research_dialog.h"

namespace mf::app {
namespace {

void ShowResearch(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::ResearchDialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("researchDialog");
  window.setWindowTitle(Q(dialog->caption));
  window.setMinimumSize(640, 480);
  auto* layout = new QVBoxLayout(&window);

  // The two lists side by side.
  auto* lists = new QGridLayout();
  auto* known = new QListWidget(&window);
  known->setObjectName("known");
  auto* offer = new QListWidget(&window);
  offer->setObjectName("offer");
  lists->addWidget(new QLabel(Q(dialog->knownTitle), &window), 0, 0);
  lists->addWidget(new QLabel(Q(dialog->offerTitle), &window), 0, 1);
  lists->addWidget(known, 1, 0);
  lists->addWidget(offer, 1, 1);
  layout->addLayout(lists, 1);

  // What the selected field is.
  auto* details = new QGroupBox(&window);
  auto* detailsLayout = new QVBoxLayout(details);
  auto* name = new QLabel(details);
  name->setObjectName("detailName");
  QFont bold = name->font();
  bold.setBold(true);
  name->setFont(bold);
  auto* text = new QLabel(details);
  text->setObjectName("detailText");
  text->setWordWrap(true);
  auto* need1 = new QLabel(details);
  need1->setObjectName("detailNeed1");
  auto* need2 = new QLabel(details);
  need2->setObjectName("detailNeed2");
  auto* number = new QLabel(details);
  number->setObjectName("detailNumber");
  detailsLayout->addWidget(name);
  detailsLayout->addWidget(text);
  detailsLayout->addWidget(need1);
  detailsLayout->addWidget(need2);
  detailsLayout->addWidget(number);
  layout->addWidget(details);

  // The editor's buttons and boxes.
  auto* editPart = new QWidget(&window);
  editPart->setObjectName("editPart");
  auto* editLayout = new QVBoxLayout(editPart);
  editLayout->setContentsMargins(0, 0, 0, 0);
  auto* editButtons = new QHBoxLayout();
  auto* editBoxes = new QHBoxLayout();
  auto* del = new QPushButton(Q(dialog->deleteCaption), editPart);
  del->setObjectName("delete");
  auto* numberButton = new QPushButton(Q(dialog->numberCaption), editPart);
  numberButton->setObjectName("number");
  auto* nameButton = new QPushButton(Q(dialog->nameCaption), editPart);
  nameButton->setObjectName("name");
  auto* need1Button = new QPushButton(Q(dialog->need1Caption), editPart);
  need1Button->setObjectName("need1");
  auto* need2Button = new QPushButton(Q(dialog->need2Caption), editPart);
  need2Button->setObjectName("need2");
  auto* wipe = new QPushButton(Q(dialog->wipeCaption), editPart);
  wipe->setObjectName("wipe");
  auto* cost = new QLineEdit(editPart);
  cost->setObjectName("cost");
  auto* fieldText = new QLineEdit(editPart);
  fieldText->setObjectName("text");
  for (QPushButton* b : {del, numberButton, nameButton, need1Button, need2Button, wipe}) editButtons->addWidget(b);
  editButtons->addStretch(1);
  cost->setMaximumWidth(80);
  editBoxes->addWidget(new QLabel(Q(dialog->costLabel), editPart));
  editBoxes->addWidget(cost);
  editBoxes->addWidget(new QLabel(Q(dialog->textLabel), editPart));
  editBoxes->addWidget(fieldText, 1);
  editLayout->addLayout(editButtons);
  editLayout->addLayout(editBoxes);
  layout->addWidget(editPart);

  auto* bottom = new QHBoxLayout();
  auto* points = new QLabel(&window);
  points->setObjectName("points");
  auto* buy = new QPushButton(Q(dialog->buyCaption), &window);
  buy->setObjectName("buy");
  auto* close = new QPushButton(Q(dialog->closeCaption), &window);
  close->setObjectName("close");
  bottom->addWidget(points);
  bottom->addStretch(1);
  bottom->addWidget(buy);
  bottom->addWidget(close);
  layout->addLayout(bottom);

  auto refresh = [=, &window] {
    FillList(known, dialog->knownRows, dialog->knownIndex);
    FillList(offer, dialog->offerRows, dialog->offerIndex);
    name->setText(Q(dialog->detailName));
    text->setText(Q(dialog->detailText));
    need1->setText(Q(dialog->detailNeed1));
    need2->setText(Q(dialog->detailNeed2));
    number->setText(Q(dialog->detailNumber));
    points->setText(Q(dialog->pointsLabel));
    editPart->setVisible(dialog->editButtonsShown);
    ShowValue(cost, dialog->costValue);
    ShowValue(fieldText, dialog->textValue);
    if (!dialog->IsOpen()) window.accept();
  };
  auto select = [dialog, refresh](const std::vector<int>& fields, int row) {
    if (row < 0 || row >= static_cast<int>(fields.size())) return;
    std::string why;
    dialog->SelectField(fields[static_cast<std::size_t>(row)], &why);
    refresh();
  };
  QObject::connect(known, &QListWidget::currentRowChanged, &window,
                   [dialog, select](int row) { select(dialog->knownFields, row); });
  QObject::connect(offer, &QListWidget::currentRowChanged, &window,
                   [dialog, select](int row) { select(dialog->offerFields, row); });
  // A press on the row already current selects it again (it may have been
  // cleared by a selection in the other list).
  QObject::connect(known, &QListWidget::itemClicked, &window,
                   [dialog, select, known](QListWidgetItem* item) { select(dialog->knownFields, known->row(item)); });
  QObject::connect(offer, &QListWidget::itemClicked, &window,
                   [dialog, select, offer](QListWidgetItem* item) { select(dialog->offerFields, offer->row(item)); });

  OnPress(buy, &window, refresh, [dialog] { dialog->BuyButton(); });
  OnPress(close, &window, refresh, [dialog] { dialog->CloseButton(); });
  OnPress(del, &window, refresh, [dialog] { dialog->DeleteButton(); });
  OnPress(numberButton, &window, refresh, [dialog] { dialog->NumberButton(); });
  OnPress(nameButton, &window, refresh, [dialog] { dialog->NameButton(); });
  OnPress(need1Button, &window, refresh, [dialog] { dialog->NeedButton(1); });
  OnPress(need2Button, &window, refresh, [dialog] { dialog->NeedButton(2); });
  OnPress(wipe, &window, refresh, [dialog] { dialog->WipeButton(); });
  QObject::connect(cost, &QLineEdit::editingFinished, &window, [dialog, cost, refresh] {
    if (!cost->isModified()) return;
    cost->setModified(false);
    dialog->SetCost(cost->text().toStdString());
    refresh();
  });
  QObject::connect(fieldText, &QLineEdit::editingFinished, &window, [dialog, fieldText, refresh] {
    if (!fieldText->isModified()) return;
    fieldText->setModified(false);
    dialog->SetText(fieldText->text().toStdString());
    refresh();
  });
  refresh();
  // Esc and the frame's close button close it as Close does.
  RunDialogWindow(window, *dialog, [dialog] { dialog->CloseButton(); });
}

}  // namespace

void RegisterResearchView() { RegisterDialogView("research", &ShowResearch); }

}  // namespace mf::app
