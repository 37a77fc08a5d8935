#include "officerpool_view.h"
#include "view_text.h"

#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "engine/officers.h"
#include "qt_canvas.h"

namespace mf::app {
namespace {

using Dialog = mf::OfficerPoolDialog;


// One officer's portrait and lines.
struct OfficerBox {
  QLabel* picture = nullptr;
  QLabel* lines = nullptr;

  OfficerBox(QGroupBox* box, const char* name) {
    auto* layout = new QHBoxLayout(box);
    picture = new QLabel(box);
    picture->setObjectName(QString(name) + "Picture");
    picture->setFixedSize(60, 72);
    picture->setAlignment(Qt::AlignCenter);
    lines = new QLabel(box);
    lines->setObjectName(QString(name) + "Lines");
    lines->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(picture);
    layout->addWidget(lines, 1);
  }
  void Show(const mf::OfficerView& view) const {
    QStringList text;
    for (const auto& line : view.lines) text << Q(line);
    lines->setText(text.join('\n'));
    const QPixmap& pix = view.picture > 0 ? Sprites().Get(view.picture) : QPixmap();
    picture->setPixmap(pix.isNull() ? QPixmap() : pix.scaled(picture->size(), Qt::KeepAspectRatio));
  }
};

void ShowOfficerPool(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<Dialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("officerPoolDialog");
  window.setWindowTitle(Dialog::kCaption);
  auto* layout = new QVBoxLayout(&window);

  auto* points = new QLabel(&window);
  points->setObjectName("points");
  layout->addWidget(points);

  // The pool on the left, the two officers on the right.
  auto* middle = new QHBoxLayout();
  auto* pool = new QListWidget(&window);
  pool->setObjectName("pool");
  pool->setMinimumWidth(220);
  middle->addWidget(pool, 1);
  auto* right = new QVBoxLayout();
  auto* unitGroup = new QGroupBox(&window);
  unitGroup->setObjectName("unitOfficer");
  OfficerBox unitBox(unitGroup, "unit");
  auto* poolGroup = new QGroupBox(&window);
  poolGroup->setObjectName("poolOfficer");
  OfficerBox poolBox(poolGroup, "pool");
  right->addWidget(unitGroup);
  right->addWidget(poolGroup);
  right->addStretch(1);
  middle->addLayout(right, 1);
  layout->addLayout(middle, 1);

  // The editor's buttons.
  auto* editPart = new QWidget(&window);
  editPart->setObjectName("editPart");
  auto* editLayout = new QHBoxLayout(editPart);
  editLayout->setContentsMargins(0, 0, 0, 0);
  auto* makeNew = new QPushButton(Dialog::kNew, editPart);
  makeNew->setObjectName("new");
  auto* portrait = new QPushButton(Dialog::kPortrait, editPart);
  portrait->setObjectName("portrait");
  auto* edit = new QPushButton(Dialog::kEdit, editPart);
  edit->setObjectName("edit");
  auto* del = new QPushButton(Dialog::kDelete, editPart);
  del->setObjectName("delete");
  auto* reset = new QPushButton(Dialog::kReset, editPart);
  reset->setObjectName("reset");
  for (QPushButton* b : {makeNew, portrait, edit, del, reset}) editLayout->addWidget(b);
  editLayout->addStretch(1);
  layout->addWidget(editPart);

  auto* bottom = new QHBoxLayout();
  auto* assign = new QPushButton(Dialog::kAssign, &window);
  assign->setObjectName("assign");
  auto* buy = new QPushButton(Dialog::kBuy, &window);
  buy->setObjectName("buy");
  auto* fire = new QPushButton(Dialog::kFire, &window);
  fire->setObjectName("fire");
  auto* close = new QPushButton(Dialog::kClose, &window);
  close->setObjectName("close");
  close->setDefault(true);
  bottom->addWidget(assign);
  bottom->addWidget(buy);
  bottom->addWidget(fire);
  bottom->addStretch(1);
  bottom->addWidget(close);
  layout->addLayout(bottom);

  auto refresh = [=, &window, &unitBox, &poolBox] {
    points->setText(Q(dialog->ppText));
    FillList(pool, dialog->poolRows, dialog->poolRow);
    unitBox.Show(dialog->unitView);
    poolBox.Show(dialog->poolView);
    poolGroup->setVisible(!dialog->poolView.lines.empty());
    fire->setEnabled(dialog->fireEnabled);
    editPart->setVisible(dialog->editButtonsShown);
    if (!dialog->IsOpen()) window.accept();
  };
  QObject::connect(pool, &QListWidget::currentRowChanged, &window, [dialog, refresh](int row) {
    std::string why;
    if (row >= 0) dialog->SelectRow(row, &why);
    refresh();
  });
  QObject::connect(pool, &QListWidget::itemClicked, &window, [dialog, pool, refresh](QListWidgetItem* item) {
    std::string why;
    dialog->SelectRow(pool->row(item), &why);
    refresh();
  });
  // A refused action leaves the dialog as it was.
  auto button = [&window, refresh](QPushButton* b, auto action) {
    QObject::connect(b, &QPushButton::clicked, &window, [action, refresh] {
      std::string why;
      action(&why);
      refresh();
    });
  };
  button(assign, [dialog](std::string* why) { return dialog->Assign(why); });
  button(buy, [dialog](std::string* why) { return dialog->Buy(why); });
  button(fire, [dialog](std::string* why) { return dialog->Fire(why); });
  button(close, [dialog](std::string* why) { return dialog->Close(why); });
  button(makeNew, [dialog](std::string* why) { return dialog->MakeNew(why); });
  button(portrait, [dialog](std::string* why) { return dialog->SetPortrait(why); });
  button(edit, [dialog](std::string* why) { return dialog->Edit(why); });
  button(del, [dialog](std::string* why) { return dialog->Delete(why); });
  button(reset, [dialog](std::string* why) { return dialog->ResetUnitOfficer(why); });
  refresh();
  // The window opens with the focus on Close: the pool list, taking the focus
  // first, would pick its first officer on its own, and the player would find
  // an officer chosen that he never pressed.
  close->setFocus(Qt::OtherFocusReason);

  // Esc and the frame's close button close it as Close does.
  RunDialogWindow(window, *dialog, [dialog] {
    std::string why;
    dialog->Close(&why);
  });
}

}  // namespace

void RegisterOfficerPoolView() { RegisterDialogView("officerpool", &ShowOfficerPool); }

}  // namespace mf::app
