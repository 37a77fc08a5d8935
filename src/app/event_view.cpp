#include "event_view.h"
#include "view_text.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialog_keys.h"
#include "dialog_views.h"
#include "engine/event_dialog.h"
#include "view/sprite_table.h"

namespace mf::app {
namespace {

using Dialog = mf::EventDialog;


// The story keeps the line breaks of the scenario (CR LF in the tables).
QString StoryText(const std::string& story) {
  QString text = Q(story);
  text.replace("\r\n", "\n");
  text.replace('\r', '\n');
  return text;
}

// The Event! window closes only by its buttons: a choice event must be
// answered, and the frame's close button would answer nothing.
class EventWindow : public QDialog {
 public:
  explicit EventWindow(QWidget* parent) : QDialog(parent) {}
  void reject() override {}
};

void ShowEvent(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<Dialog*>(&humble);
  if (!dialog) return;
  EventWindow window(parent);
  window.setObjectName("eventDialog");
  window.setWindowTitle(Q(dialog->caption));
  window.setMinimumWidth(560);
  auto* layout = new QVBoxLayout(&window);

  // The picture stands above the story. It is read from its file now and
  // let go when the window closes.
  auto* picture = new QLabel(&window);
  picture->setObjectName("eventPicture");
  picture->setAlignment(Qt::AlignCenter);
  const std::string path = dialog->picture > 0 ? mf::SpritePath(dialog->picture) : std::string();
  QPixmap pixmap;
  if (!path.empty()) pixmap.load(Q(path));
  if (!pixmap.isNull()) {
    picture->setPixmap(pixmap);
  } else {
    picture->hide();
  }
  layout->addWidget(picture);

  auto* story = new QPlainTextEdit(&window);
  story->setObjectName("eventStory");
  story->setReadOnly(true);
  story->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  story->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  story->setPlainText(StoryText(dialog->story));
  story->setMinimumHeight(140);
  layout->addWidget(story, 1);

  // The five choice buttons, each only with a text of its own, then OK.
  auto* buttons = new QVBoxLayout();
  for (int c = 0; c < Dialog::kChoices; ++c) {
    if (!dialog->choiceShown[c]) continue;
    auto* b = new QPushButton(Q(dialog->choiceCaption[c]), &window);
    b->setObjectName(QString("choice%1").arg(c + 1));
    buttons->addWidget(b);
    QObject::connect(b, &QPushButton::clicked, &window, [dialog, c, &window] {
      std::string why;
      dialog->ChoiceButton(c + 1, &why);
      if (!dialog->IsOpen()) window.accept();
    });
  }
  auto* okRow = new QHBoxLayout();
  okRow->addStretch(1);
  auto* ok = new QPushButton(Q(dialog->okCaption), &window);
  ok->setObjectName("eventOk");
  ok->setEnabled(dialog->okEnabled);
  ok->setDefault(dialog->okEnabled);
  okRow->addWidget(ok);
  buttons->addLayout(okRow);
  layout->addLayout(buttons);
  QObject::connect(ok, &QPushButton::clicked, &window, [dialog, &window] {
    std::string why;
    dialog->OkButton(&why);
    if (!dialog->IsOpen()) window.accept();
  });

  SetMainAction(&window, ok);
  // Events are shown while the turn changes hands under the busy pointer;
  // the player reading one gets the ordinary pointer.
  RunDialogWindow(window, *dialog, {}, DialogPointer::kArrow);
}

}  // namespace

void RegisterEventView() { RegisterDialogView("event", &ShowEvent); }

}  // namespace mf::app
