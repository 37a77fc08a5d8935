// The side panel: what the current player may know of the selected hex and
// its formations, as the game's panel content holds it.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QWidget>
#include <array>

#include "qt_canvas.h"

namespace mf::app {

// A small counter of the stack, pressable.
class StackCounter : public QLabel {
  Q_OBJECT
 public:
  StackCounter(int slot, QWidget* parent);
 signals:
  void Pressed(int slot);

 protected:
  void mousePressEvent(QMouseEvent*) override;

 private:
  int slot_;
};

class SidePanel : public QFrame {
  Q_OBJECT
 public:
  explicit SidePanel(QWidget* parent = nullptr);
  // Shows mf::Panel as it stands.
  void ShowContent();
  // The canvas the game draws the hex picture on, for a hex without a
  // formation to be seen.
  ImageCanvas& hexCanvas() { return hexCanvas_; }

 signals:
  void StackSlotPressed(int slot);

 private:
  QLabel* Add(const char* name, QWidget* parent, bool bold = false);

  ImageCanvas hexCanvas_;
  QWidget* hexBox_ = nullptr;
  QLabel* coords_ = nullptr;
  QLabel* land_ = nullptr;
  QLabel* ownerFlag_ = nullptr;
  QLabel* owner_ = nullptr;
  QLabel* supplyIcon_ = nullptr;
  QLabel* supply_ = nullptr;
  QWidget* urbanBox_ = nullptr;
  QLabel* urbanName_ = nullptr;
  QLabel* urbanPop_ = nullptr;
  QLabel* urbanProd_ = nullptr;
  QLabel* urbanShq_ = nullptr;
  QLabel* urbanDamage_ = nullptr;
  QLabel* urbanDistance_ = nullptr;
  std::array<StackCounter*, 4> stack_{};
  std::array<QLabel*, 4> stackBar_{};
  QLabel* bigPicture_ = nullptr;
  QLabel* pictureCaption_ = nullptr;
  QWidget* unitBox_ = nullptr;
  QLabel* unitName_ = nullptr;
  QLabel* readiness_ = nullptr;
  QLabel* experience_ = nullptr;
  QLabel* supplyPct_ = nullptr;
  QLabel* mp_ = nullptr;
  QLabel* officerPic_ = nullptr;
  QLabel* officer_ = nullptr;
  QLabel* thq_ = nullptr;
  QLabel* shq_ = nullptr;
  QLabel* player_ = nullptr;
  std::array<QLabel*, 5> troopPic_{};
  std::array<QLabel*, 5> troopText_{};
  std::array<QLabel*, 5> troopExtra_{};
  QLabel* kcap_ = nullptr;
};

}  // namespace mf::app
