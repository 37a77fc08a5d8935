// The General dialog's window: three tabs, the engine variables with their
// filter, the general fields and story, and the events.
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "editor/general_dialog.h"
#include "editor_views.h"
#include "view_text.h"

namespace mf::app {
namespace {

void ShowGeneral(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::GeneralDialog*>(&humble);
  if (!dialog) return;
  using D = mf::GeneralDialog;
  QDialog window(parent);
  window.setObjectName("generalDialog");
  window.setWindowTitle(D::kCaption);
  window.resize(900, 640);
  auto* layout = new QVBoxLayout(&window);
  auto* tabs = new QTabWidget(&window);
  layout->addWidget(tabs, 1);

  // Engine variables.
  auto* evPage = new QWidget(tabs);
  auto* evLayout = new QVBoxLayout(evPage);
  auto* filter = new QLineEdit(evPage);
  filter->setObjectName("filter");
  filter->setPlaceholderText("Filter by description or number");
  filter->setClearButtonEnabled(true);
  auto* evList = NewReportList(evPage);
  evList->setObjectName("engineVars");
  evList->setSelectionMode(QAbstractItemView::SingleSelection);
  evLayout->addWidget(filter);
  evLayout->addWidget(evList, 1);
  evLayout->addWidget(new QLabel("Double click a line to give it a new value; * marks a value that is not the default.", evPage));
  tabs->addTab(evPage, "Engine Variables");

  // General fields and the story.
  auto* genPage = new QWidget(tabs);
  auto* genForm = new QFormLayout(genPage);
  std::vector<QLineEdit*> genBoxes;
  const char* const genNames[6] = {"gameendpop", "dirsound", "dircolorcode", "dirmap", "dirtype", "dirofficer"};
  for (int k = 0; k < 6; ++k) {
    auto* e = new QLineEdit(genPage);
    e->setObjectName(genNames[k]);
    genBoxes.push_back(e);
    genForm->addRow(new QLabel(genPage), e);
  }
  auto* story = new QPlainTextEdit(genPage);
  story->setObjectName("story");
  genForm->addRow("Scenario story:", story);
  tabs->addTab(genPage, "General");

  // Events.
  auto* evtPage = new QWidget(tabs);
  auto* evtLayout = new QHBoxLayout(evtPage);
  auto* evtLeft = new QVBoxLayout();
  auto* numberRow = new QHBoxLayout();
  auto* eventBox = new QLineEdit(evtPage);
  eventBox->setObjectName("event");
  auto* copy = new QPushButton(D::kCopy, evtPage);
  copy->setObjectName("copy");
  numberRow->addWidget(new QLabel("Event # (1-199):", evtPage));
  numberRow->addWidget(eventBox);
  numberRow->addWidget(copy);
  evtLeft->addLayout(numberRow);
  auto* fields = NewReportList(evtPage);
  fields->setObjectName("eventFields");
  evtLeft->addWidget(fields, 1);
  auto* evStory = new QPlainTextEdit(evtPage);
  evStory->setObjectName("evstory");
  evStory->setMaximumHeight(120);
  evtLeft->addWidget(new QLabel("SHOW STORY:", evtPage));
  evtLeft->addWidget(evStory);
  evtLayout->addLayout(evtLeft, 1);
  auto* evtRight = new QVBoxLayout();
  auto* data = NewReportList(evtPage);
  data->setObjectName("data");
  auto* texts = NewReportList(evtPage);
  texts->setObjectName("texts");
  texts->setMaximumHeight(110);
  evtRight->addWidget(new QLabel("DATA 30x (double click to edit):", evtPage));
  evtRight->addWidget(data, 1);
  evtRight->addWidget(new QLabel("DATASTRING 5x (double click to edit):", evtPage));
  evtRight->addWidget(texts);
  evtLayout->addLayout(evtRight, 1);
  tabs->addTab(evtPage, "Events");

  auto* close = new QPushButton(D::kClose, &window);
  close->setObjectName("close");
  auto* bottom = new QHBoxLayout();
  bottom->addStretch(1);
  bottom->addWidget(close);
  layout->addLayout(bottom);

  auto showText = [](QPlainTextEdit* edit, const std::string& value) {
    if (edit->hasFocus()) return;
    const QSignalBlocker block(edit);
    if (edit->toPlainText() != Q(value)) edit->setPlainText(Q(value));
  };
  auto refresh = [=, &window] {
    FillList(evList, dialog->evRows, -1);
    for (int k = 0; k < 6 && k < static_cast<int>(dialog->generalFields.size()); ++k) {
      const auto& f = dialog->generalFields[static_cast<std::size_t>(k)];
      qobject_cast<QLabel*>(genForm->labelForField(genBoxes[static_cast<std::size_t>(k)]))->setText(Q(f.label));
      ShowValue(genBoxes[static_cast<std::size_t>(k)], f.value);
    }
    showText(story, dialog->storyValue);
    FillList(fields, dialog->eventFieldRows, -1);
    FillList(data, dialog->dataRows, -1);
    FillList(texts, dialog->textRows, -1);
    showText(evStory, dialog->eventStory);
    const bool hasEvent = dialog->event != 0;
    for (QWidget* w : std::initializer_list<QWidget*>{copy, fields, evStory, data, texts}) w->setEnabled(hasEvent);
    if (!dialog->IsOpen()) window.accept();
  };
  auto promptRow = [&window, refresh](QListWidget* list, auto apply) {
    QObject::connect(list, &QListWidget::itemDoubleClicked, &window, [list, apply, refresh](QListWidgetItem* item) {
      apply(list->row(item));
      refresh();
    });
  };
  promptRow(evList, [dialog](int row) {
    if (row >= 0 && row < static_cast<int>(dialog->evOfRow.size())) dialog->ChangeVar(dialog->evOfRow[static_cast<std::size_t>(row)]);
  });
  // The event's lines are edited through a prompt with the line's words.
  auto ask = [](const std::string& line) { return mf::Plat().InputPrompt(line, "Give New Value", ""); };
  promptRow(fields, [dialog, ask](int row) {
    const std::string v = ask(dialog->eventFieldRows[static_cast<std::size_t>(row)]);
    if (!v.empty()) dialog->SetEventField(row + 1, v);
  });
  promptRow(data, [dialog, ask](int row) {
    const std::string v = ask(dialog->dataRows[static_cast<std::size_t>(row)]);
    if (!v.empty()) dialog->SetData(row + 1, v);
  });
  promptRow(texts, [dialog, ask](int row) {
    const std::string v = ask(dialog->textRows[static_cast<std::size_t>(row)]);
    if (!v.empty()) dialog->SetDataText(row + 1, v);
  });
  QObject::connect(filter, &QLineEdit::textChanged, &window, [dialog, refresh](const QString& t) {
    dialog->SetFilter(t.toStdString());
    refresh();
  });
  for (int k = 0; k < 6; ++k) {
    OnEdited(genBoxes[static_cast<std::size_t>(k)], &window, refresh, [dialog, k](const std::string& v) {
      if (k == 0) dialog->SetGameEndPop(v);
      else dialog->SetFolder(k - 1, v);
    });
  }
  QObject::connect(eventBox, &QLineEdit::returnPressed, &window, [dialog, eventBox, refresh] {
    dialog->EventNumber(eventBox->text().toStdString());
    refresh();
  });
  QObject::connect(story, &QPlainTextEdit::textChanged, &window,
                   [dialog, story] { dialog->SetStory(story->toPlainText().toStdString()); });
  QObject::connect(evStory, &QPlainTextEdit::textChanged, &window,
                   [dialog, evStory] { dialog->SetEventStory(evStory->toPlainText().toStdString()); });
  OnPress(copy, &window, refresh, [dialog] { dialog->CopyButton(); });
  OnPress(close, &window, refresh, [dialog] { dialog->CloseButton(); });
  refresh();
  RunDialogWindow(window, *dialog, [dialog] { dialog->CloseButton(); });
}

}  // namespace

void RegisterGeneralView() { RegisterDialogView("general", &ShowGeneral); }

}  // namespace mf::app
