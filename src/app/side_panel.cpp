#include "side_panel.h"
#include "view_text.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "model/game_state.h"
#include "view/panel.h"

namespace mf::app {
namespace {

constexpr int kCounterBox = 47;


// A sprite scaled to fit a box, keeping its shape; empty when there is none.
QPixmap Fit(int sprite, int w, int h) {
  const QPixmap& pm = Sprites().Get(sprite);
  if (pm.isNull()) return QPixmap();
  if (pm.width() == w && pm.height() == h) return pm;
  return pm.scaled(w, h, Qt::KeepAspectRatio, Qt::FastTransformation);
}

// A counter with its THQ badge over it, as the map shows it.
QPixmap CounterPixmap(int picture, int badge, int scale) {
  QPixmap out(43 * scale, 41 * scale);
  out.fill(Qt::transparent);
  QPainter p(&out);
  p.scale(scale, scale);
  p.setRenderHint(QPainter::SmoothPixmapTransform, true);
  // The big picture takes the pictures drawn at twice the size.
  for (int sprite : {picture, badge}) {
    if (sprite <= 0) continue;
    const QPixmap& pm = Sprites().Get(sprite);
    const QPixmap& drawn = Sprites().Get(sprite, scale);
    if (!pm.isNull()) p.drawPixmap(QRectF(0, 0, pm.width(), pm.height()), drawn, QRectF(drawn.rect()));
  }
  return out;
}

// Is the formation in slot `slot` of hex (x, y) joined to the attack being prepared?
bool JoinedToAttack(int x, int y, int slot) {
  if (mf::UI.Order.AttackOrder <= 0) return false;
  for (int i = 1; i <= mf::UI.AttackerCount && i <= kAttackerCap; ++i) {
    if (mf::UI.AttackerX[i] == x && mf::UI.AttackerY[i] == y && mf::UI.AttackerSlot[i] == slot) return true;
  }
  return false;
}

constexpr int kJoinedSprite = 892;

void SetShown(QWidget* w, bool shown) {
  if (w->isVisibleTo(w->parentWidget()) != shown) w->setVisible(shown);
}

}  // namespace

StackCounter::StackCounter(int slot, QWidget* parent) : QLabel(parent), slot_(slot) {
  setObjectName(QString("stackSlot%1").arg(slot));
  setFixedSize(kCounterBox, kCounterBox - 2);
  setAlignment(Qt::AlignCenter);
  setCursor(Qt::PointingHandCursor);
}

void StackCounter::mousePressEvent(QMouseEvent* e) {
  if (e->button() == Qt::LeftButton) emit Pressed(slot_);
}

QLabel* SidePanel::Add(const char* name, QWidget* parent, bool bold) {
  auto* l = new QLabel(parent);
  l->setObjectName(name);
  l->setTextFormat(Qt::PlainText);
  l->setWordWrap(false);
  if (bold) {
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
  }
  return l;
}

SidePanel::SidePanel(QWidget* parent) : QFrame(parent), hexCanvas_(43, 41, QColor(0, 0, 0, 0), 2) {
  setObjectName("sidePanel");
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(8, 6, 8, 6);
  outer->setSpacing(4);

  // ---- The hex.
  hexBox_ = new QWidget(this);
  auto* hexGrid = new QGridLayout(hexBox_);
  hexGrid->setContentsMargins(0, 0, 0, 0);
  hexGrid->setHorizontalSpacing(6);
  hexGrid->setVerticalSpacing(2);
  coords_ = Add("hexCoords", hexBox_, true);
  land_ = Add("landLabel", hexBox_, true);
  ownerFlag_ = Add("ownerFlag", hexBox_);
  ownerFlag_->setFixedSize(43, 41);
  owner_ = Add("ownerLabel", hexBox_);
  supplyIcon_ = Add("supplyIcon", hexBox_);
  supplyIcon_->setFixedSize(43, 41);
  supply_ = Add("supplyLabel", hexBox_, true);
  hexGrid->addWidget(coords_, 0, 0, 1, 2);
  hexGrid->addWidget(land_, 0, 2, 1, 2);
  hexGrid->addWidget(ownerFlag_, 1, 0);
  hexGrid->addWidget(owner_, 1, 1);
  hexGrid->addWidget(supplyIcon_, 1, 2);
  hexGrid->addWidget(supply_, 1, 3);
  hexGrid->setColumnStretch(1, 1);
  hexGrid->setColumnStretch(3, 1);
  outer->addWidget(hexBox_);

  // ---- The town.
  urbanBox_ = new QWidget(this);
  urbanBox_->setObjectName("urbanBox");
  auto* urban = new QGridLayout(urbanBox_);
  urban->setContentsMargins(0, 0, 0, 0);
  urban->setVerticalSpacing(1);
  urbanName_ = Add("urbanName", urbanBox_, true);
  urbanPop_ = Add("urbanPop", urbanBox_);
  urbanProd_ = Add("urbanProd", urbanBox_);
  urbanShq_ = Add("urbanShq", urbanBox_);
  urbanDamage_ = Add("urbanDamage", urbanBox_);
  urbanDistance_ = Add("urbanDistance", urbanBox_);
  urban->addWidget(urbanName_, 0, 0);
  urban->addWidget(urbanPop_, 0, 1);
  urban->addWidget(urbanProd_, 1, 0, 1, 2);
  urban->addWidget(urbanShq_, 2, 0);
  urban->addWidget(urbanDistance_, 2, 1);
  urban->addWidget(urbanDamage_, 3, 0, 1, 2);
  outer->addWidget(urbanBox_);

  // ---- The stack and the picture of the selection.
  auto* stackRow = new QHBoxLayout();
  stackRow->setSpacing(4);
  bigPicture_ = Add("bigPicture", this);
  bigPicture_->setFixedSize(90, 86);
  bigPicture_->setAlignment(Qt::AlignCenter);
  stackRow->addWidget(bigPicture_);
  auto* stackCol = new QVBoxLayout();
  stackCol->setSpacing(0);
  auto* counters = new QHBoxLayout();
  counters->setSpacing(3);
  auto* bars = new QHBoxLayout();
  bars->setSpacing(3);
  for (int s = 1; s <= 3; ++s) {
    stack_[s] = new StackCounter(s, this);
    connect(stack_[s], &StackCounter::Pressed, this, &SidePanel::StackSlotPressed);
    counters->addWidget(stack_[s]);
    stackBar_[s] = Add("stackBar", this);
    stackBar_[s]->setFixedSize(kCounterBox, 6);
    bars->addWidget(stackBar_[s]);
  }
  counters->addStretch();
  bars->addStretch();
  stackCol->addLayout(counters);
  stackCol->addLayout(bars);
  pictureCaption_ = Add("pictureCaption", this, true);
  stackCol->addWidget(pictureCaption_);
  stackCol->addStretch();
  stackRow->addLayout(stackCol, 1);
  outer->addLayout(stackRow);

  // ---- The selected formation.
  unitBox_ = new QWidget(this);
  unitBox_->setObjectName("unitBox");
  auto* unit = new QGridLayout(unitBox_);
  unit->setContentsMargins(0, 0, 0, 0);
  unit->setHorizontalSpacing(6);
  unit->setVerticalSpacing(1);
  unitName_ = Add("unitName", unitBox_, true);
  readiness_ = Add("readinessLabel", unitBox_);
  experience_ = Add("experienceLabel", unitBox_);
  supplyPct_ = Add("unitSupplyLabel", unitBox_);
  mp_ = Add("mpLabel", unitBox_);
  officerPic_ = Add("officerPicture", unitBox_);
  officerPic_->setFixedSize(44, 52);
  officerPic_->setAlignment(Qt::AlignCenter);
  officer_ = Add("officerLabel", unitBox_);
  thq_ = Add("thqLabel", unitBox_);
  shq_ = Add("shqLabel", unitBox_);
  player_ = Add("playerLabel", unitBox_);
  unit->addWidget(unitName_, 0, 0, 1, 3);
  unit->addWidget(officerPic_, 1, 0, 3, 1);
  unit->addWidget(readiness_, 1, 1);
  unit->addWidget(experience_, 1, 2);
  unit->addWidget(supplyPct_, 2, 1);
  unit->addWidget(mp_, 2, 2);
  unit->addWidget(officer_, 3, 1, 1, 2);
  unit->addWidget(thq_, 4, 0, 1, 3);
  unit->addWidget(shq_, 5, 0, 1, 3);
  unit->addWidget(player_, 6, 0, 1, 3);
  auto* troops = new QGridLayout();
  troops->setHorizontalSpacing(6);
  troops->setVerticalSpacing(1);
  for (int c = 1; c <= 4; ++c) {
    troopPic_[c] = Add("troopPicture", unitBox_);
    troopPic_[c]->setFixedSize(48, 32);
    troopPic_[c]->setAlignment(Qt::AlignCenter);
    troopText_[c] = Add("troopText", unitBox_);
    troopText_[c]->setObjectName(QString("troop%1").arg(c));
    troopExtra_[c] = Add("troopExtra", unitBox_);
    troopExtra_[c]->setObjectName(QString("troopExtra%1").arg(c));
    troops->addWidget(troopPic_[c], c - 1, 0);
    troops->addWidget(troopText_[c], c - 1, 1);
    troops->addWidget(troopExtra_[c], c - 1, 2);
  }
  troops->setColumnStretch(1, 1);
  unit->addLayout(troops, 7, 0, 1, 3);
  kcap_ = Add("kcapLabel", unitBox_, true);
  unit->addWidget(kcap_, 8, 0, 1, 3);
  outer->addWidget(unitBox_);
  outer->addStretch(1);

  ShowContent();
}

void SidePanel::ShowContent() {
  const mf::PanelContent& p = mf::Panel;
  SetShown(hexBox_, p.hexShown);
  if (!p.hexShown) {
    SetShown(urbanBox_, false);
    SetShown(unitBox_, false);
    bigPicture_->clear();
    pictureCaption_->clear();
    for (int s = 1; s <= 3; ++s) {
      stack_[s]->clear();
      stack_[s]->setStyleSheet(QString());
      stackBar_[s]->setStyleSheet(QString());
    }
    return;
  }
  coords_->setText(QString("Hex %1, %2").arg(p.x).arg(p.y));
  land_->setText(Q(p.landText));
  ownerFlag_->setPixmap(Fit(p.ownerFlag, 43, 41));
  owner_->setText(Q(p.ownerText));
  supplyIcon_->setPixmap(Fit(p.supplyIcon, 43, 41));
  supply_->setText(Q(p.supplyText));
  supply_->setStyleSheet(QString("color: %1;").arg(GameColour(p.supplyColour).name()));

  SetShown(urbanBox_, p.urbanShown);
  if (p.urbanShown) {
    urbanName_->setText(Q(p.urbanName));
    urbanPop_->setText(p.urbanPop.empty() ? QString() : "Pop " + Q(p.urbanPop));
    urbanProd_->setText(Q(p.urbanProd));
    urbanShq_->setText(Q(p.urbanShq));
    urbanDamage_->setText(Q(p.urbanDamage));
    urbanDistance_->setText(Q(p.urbanDistance));
  }

  for (int s = 1; s <= 3; ++s) {
    const mf::PanelStackSlot& slot = p.stack[s];
    if (!slot.shown) {
      stack_[s]->clear();
      stack_[s]->setStyleSheet(QString());
      stackBar_[s]->setStyleSheet(QString());
      stack_[s]->setToolTip(QString());
      continue;
    }
    // A formation joined to the attack being prepared carries the joined
    // mark and an orange frame; a press on it takes it out again.
    const bool joined = JoinedToAttack(p.x, p.y, s);
    QPixmap counter = CounterPixmap(slot.picture, slot.badge, 1);
    if (joined) {
      QPainter mark(&counter);
      mark.drawPixmap(0, 0, Sprites().Get(kJoinedSprite));
    }
    stack_[s]->setPixmap(counter);
    stack_[s]->setStyleSheet(joined          ? "border: 2px solid #ffaa28; border-radius: 3px;"
                             : slot.selected ? "border: 2px solid #ffe65a; border-radius: 3px;"
                                             : "border: 1px solid #46505c; border-radius: 3px;");
    QString tip = slot.unit > 0 && slot.unit <= kUnitCap ? Q(mf::Unit[slot.unit].Name) : QString();
    if (mf::UI.Order.AttackOrder > 0) {
      tip += joined ? "\nJoined to the attack: click to take it out" : "\nClick to join it to the attack";
    }
    stack_[s]->setToolTip(tip);
    stack_[s]->setProperty("joined", joined);
    // The range bar: a segment per movement point left, up to the counter's width.
    if (slot.mp >= 0) {
      const int w = std::min(kCounterBox, slot.mp * 4);
      stackBar_[s]->setStyleSheet(
          QString("background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #5ad25a, stop:%1 #5ad25a, "
                  "stop:%2 transparent, stop:1 transparent);")
              .arg(w / double(kCounterBox))
              .arg(std::min(1.0, w / double(kCounterBox) + 0.001)));
      stackBar_[s]->setToolTip(QString("MP %1").arg(slot.mp));
    } else {
      stackBar_[s]->setStyleSheet(QString());
      stackBar_[s]->setToolTip(QString());
    }
  }

  if (p.unitPictureShown) {
    const int sel = [&] {
      for (int s = 1; s <= 3; ++s)
        if (p.stack[s].selected) return s;
      return 0;
    }();
    bigPicture_->setPixmap(CounterPixmap(p.unitPicture, sel > 0 ? p.stack[sel].badge : 0, 2));
    pictureCaption_->setText(Q(p.unitName));
  } else if (p.hexPictureShown) {
    hexCanvas_.End();
    bigPicture_->setPixmap(QPixmap::fromImage(hexCanvas_.image()));
    pictureCaption_->setText(Q(p.hexCaption));
  } else {
    bigPicture_->clear();
    pictureCaption_->clear();
  }

  SetShown(unitBox_, p.unitShown);
  if (p.unitShown) {
    unitName_->setText(Q(p.unitName));
    readiness_->setText("RDN " + Q(p.readinessText));
    experience_->setText("EXP " + Q(p.experienceText));
    supplyPct_->setText("SUP " + Q(p.supplyPctText));
    mp_->setText("MP " + Q(p.mpText));
    officerPic_->setPixmap(Fit(p.officerPicture, 44, 52));
    officer_->setText(Q(p.officerText));
    thq_->setText(Q(p.thqText) + ": " + Q(p.thqName));
    shq_->setText(Q(p.shqText) + ": " + Q(p.shqName));
    player_->setText(Q(p.playerText) + ": " + Q(p.playerName));
    for (int c = 1; c <= 4; ++c) {
      const mf::PanelTroopSlot& t = p.troops[c];
      troopPic_[c]->setPixmap(Fit(t.picture, 48, 32));
      const QString qty = t.qtyText.empty() ? QString() : "  " + Q(t.qtyText);
      troopText_[c]->setText(Q(t.typeText) + qty);
      troopText_[c]->setEnabled(t.type > 0);
      troopExtra_[c]->setText(Q(t.extraText));
    }
    kcap_->setText(Q(p.kcapText));
  }
}

}  // namespace mf::app
