#include "diplomatics_view.h"
#include "view_text.h"

#include <QDialog>
#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "engine/diplomatics_dialog.h"
#include "qt_canvas.h"

namespace mf::app {
namespace {


void ShowDiplomatics(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::DiplomaticsDialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("diplomaticsDialog");
  window.setWindowTitle(Q(dialog->caption));
  window.setMinimumWidth(560);
  auto* layout = new QVBoxLayout(&window);

  auto* title = new QLabel(&window);
  title->setObjectName("title");
  QFont big = title->font();
  big.setBold(true);
  big.setPointSize(big.pointSize() + 2);
  title->setFont(big);
  layout->addWidget(title);

  // Ten places, one per regime number; the speaker's own place stays empty
  // but keeps its height, so a regime is always found at the same height.
  auto* grid = new QGridLayout();
  QLabel* pictures[mf::kDipRows] = {};
  QLabel* texts[mf::kDipRows] = {};
  QPushButton* buttons[mf::kDipRows] = {};
  for (int p = 0; p < mf::kDipRows; ++p) {
    pictures[p] = new QLabel(&window);
    pictures[p]->setObjectName(QString("picture%1").arg(p + 1));
    pictures[p]->setFixedSize(43, 41);
    texts[p] = new QLabel(&window);
    texts[p]->setObjectName(QString("text%1").arg(p + 1));
    buttons[p] = new QPushButton(&window);
    buttons[p]->setObjectName(QString("row%1").arg(p + 1));
    grid->addWidget(pictures[p], p, 0);
    grid->addWidget(texts[p], p, 1);
    grid->addWidget(buttons[p], p, 2);
    grid->setRowMinimumHeight(p, 43);
  }
  grid->setColumnStretch(1, 1);
  layout->addLayout(grid);

  auto* bottom = new QHBoxLayout();
  auto* close = new QPushButton(Q(dialog->closeCaption), &window);
  close->setObjectName("close");
  bottom->addStretch(1);
  bottom->addWidget(close);
  layout->addLayout(bottom);

  auto refresh = [=, &window] {
    title->setText(Q(dialog->title));
    for (int p = 0; p < mf::kDipRows; ++p) {
      const mf::DiplomaticsRow& row = dialog->rows[p];
      pictures[p]->setVisible(row.shown);
      texts[p]->setVisible(row.shown);
      pictures[p]->setPixmap(row.shown ? Sprites().Get(row.hexPicture) : QPixmap());
      texts[p]->setText(Q(row.text));
      buttons[p]->setText(Q(row.buttonCaption));
      buttons[p]->setVisible(row.shown && row.buttonShown);
      buttons[p]->setEnabled(row.buttonEnabled);
    }
    if (!dialog->IsOpen()) window.accept();
  };
  for (int p = 0; p < mf::kDipRows; ++p) {
    QObject::connect(buttons[p], &QPushButton::clicked, &window, [dialog, refresh, p] {
      std::string why;
      dialog->PressRow(p + 1, &why);
      refresh();
    });
  }
  QObject::connect(close, &QPushButton::clicked, &window, [dialog, refresh] {
    dialog->CloseButton();
    refresh();
  });
  refresh();
  // Esc and the frame's close button close it as Close does.
  RunDialogWindow(window, *dialog, [dialog] { dialog->CloseButton(); });
}

}  // namespace

void RegisterDiplomaticsView() { RegisterDialogView("diplomatics", &ShowDiplomatics); }

}  // namespace mf::app
