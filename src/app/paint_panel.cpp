#include "paint_panel.h"
#include "view_text.h"

#include <QGridLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

#include "editor/map_paint.h"
#include "model/game_state.h"

namespace mf::app {

PaintPanel::PaintPanel(QWidget* parent, QWidget* shortcutHost, std::function<void(std::function<void()>)> run)
    : QWidget(parent), run_(std::move(run)) {
  setObjectName("paintPanel");
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(4);

  regimeBox_ = new QLineEdit(this);
  regimeBox_->setObjectName("paintRegimeBox");
  regimeBox_->setPlaceholderText("Regime # (99 neutral)");
  regime_ = new QPushButton(this);
  regime_->setObjectName("paintRegime");
  urban_ = new QPushButton(this);
  urban_->setObjectName("paintUrban");
  type_ = new QPushButton(this);
  type_->setObjectName("paintType");
  list_ = new QListWidget(this);
  list_->setObjectName("paintList");
  list_->setFixedHeight(150);
  // Row 0 of the widget is list row 1, the empty lines included.
  for (int row = 1; row <= kPaintListRows; ++row) {
    const std::string& entry = PaintListEntry(row);
    list_->addItem(entry.empty() ? QString() : QString("%1 %2").arg(row).arg(Q(entry)));
  }
  for (QPushButton* b : {regime_, urban_, type_}) b->setFocusPolicy(Qt::NoFocus);

  grid->addWidget(regimeBox_, 0, 0);
  grid->addWidget(regime_, 1, 0);
  grid->addWidget(urban_, 2, 0);
  grid->addWidget(type_, 3, 0);
  grid->addWidget(list_, 0, 1, 4, 1);

  connect(regimeBox_, &QLineEdit::textEdited, this,
          [this](const QString& t) { run_([t] { SetPaintRegimeBox(t.toStdString()); }); });
  connect(list_, &QListWidget::currentRowChanged, this, [this](int r) { run_([r] { SelectPaintRow(r + 1); }); });
  connect(regime_, &QPushButton::clicked, this, [this] { run_([] { PressRegimePaint(); }); });
  connect(type_, &QPushButton::clicked, this, [this] { run_([] { PressTypePaint(); }); });
  connect(urban_, &QPushButton::clicked, this, [this] { run_([] { PressUrban(); }); });

  auto* undo = new QShortcut(QKeySequence::Undo, shortcutHost);
  undo->setObjectName("paintUndo");
  connect(undo, &QShortcut::activated, this, [this] {
    if (UI.EditMode == 1) run_([] { UndoPaint(); });
  });
  auto* redo = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Y), shortcutHost);
  redo->setObjectName("paintRedo");
  connect(redo, &QShortcut::activated, this, [this] {
    if (UI.EditMode == 1) run_([] { RedoPaint(); });
  });
  Sync();
}

void PaintPanel::Sync() {
  setVisible(UI.EditMode == 1 && UI.ShowEditorPanel);
  regime_->setText(Q(RegimePaintCaption()));
  type_->setText(Q(TypePaintCaption()));
  urban_->setText(Q(UrbanCaption()));
  if (regimeBox_->text() != Q(PaintTools.regimeBox)) regimeBox_->setText(Q(PaintTools.regimeBox));
  const QSignalBlocker block(list_);
  list_->setCurrentRow(PaintTools.listRow - 1);
}

}  // namespace mf::app
