#include "splash.h"

#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/game_state.h"
#include "platform/platform.h"
#include "qt_canvas.h"
#include "view/draw_hex.h"

namespace mf::app {
namespace {

constexpr int kIntroSound = 2;
constexpr int kW = 640;
constexpr int kH = 360;

}  // namespace

QImage SplashPicture() {
  QImage img(kW, kH, QImage::Format_ARGB32_Premultiplied);
  QPainter p(&img);
  QLinearGradient sky(0, 0, 0, kH);
  sky.setColorAt(0, QColor(22, 30, 44));
  sky.setColorAt(1, QColor(52, 60, 48));
  p.fillRect(img.rect(), sky);

  // A strip of country along the bottom, hex by hex as the map lays it out.
  const int lands[] = {sprite::kSeaHex, sprite::kBaseHex, sprite::kBaseHex, sprite::kBaseHex, 21, 21, 22, 22};
  for (int row = 0; row < 4; ++row) {
    for (int col = -1; col < kW / 42 + 1; ++col) {
      const int x = col * 42 + (row % 2 != 0 ? 21 : 0);
      const int y = kH - 150 + row * 30;
      const int base = lands[(col + 3 * row + 16) % 8];
      const QPixmap& pm = Sprites().Get(base);
      if (!pm.isNull()) p.drawPixmap(x, y, pm);
      const int extra = (col * 7 + row * 3) % 5 == 0 ? sprite::kForest
                        : (col * 5 + row) % 9 == 0   ? sprite::kMountain
                                                     : 0;
      if (extra > 0 && base != sprite::kSeaHex) {
        const QPixmap& ex = Sprites().Get(extra);
        if (!ex.isNull()) p.drawPixmap(x, y, ex);
      }
    }
  }
  // Two opposing counters in the middle of the strip.
  for (int k = 0; k < 2; ++k) {
    const QPixmap& c = Sprites().Get(k == 0 ? 201 : 262);
    if (!c.isNull()) p.drawPixmap(kW / 2 - 60 + k * 84, kH - 120, c.scaled(86, 82));
  }

  p.setRenderHint(QPainter::TextAntialiasing, true);
  QFont title("DejaVu Serif");
  title.setPixelSize(56);
  title.setBold(true);
  title.setLetterSpacing(QFont::AbsoluteSpacing, 3);
  p.setFont(title);
  p.setPen(QColor(0, 0, 0, 150));
  p.drawText(QRect(3, 43, kW, 90), Qt::AlignHCenter | Qt::AlignTop, "MARROWFIELD");
  p.setPen(QColor(236, 214, 150));
  p.drawText(QRect(0, 40, kW, 90), Qt::AlignHCenter | Qt::AlignTop, "MARROWFIELD");
  QFont sub("DejaVu Sans");
  sub.setPixelSize(17);
  p.setFont(sub);
  p.setPen(QColor(210, 214, 220));
  p.drawText(QRect(0, 122, kW, 30), Qt::AlignHCenter | Qt::AlignTop,
             "A war of fronts, supply and command on the hex map");
  return img;
}

Splash::Splash(QWidget* parent) : QDialog(parent) {
  setObjectName("splash");
  setWindowTitle(mf::kProgramTitle);
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 12);
  auto* picture = new QLabel(this);
  picture->setPixmap(QPixmap::fromImage(SplashPicture()));
  layout->addWidget(picture);
  auto* go = new QPushButton("Enter the field", this);
  go->setObjectName("splashButton");
  go->setDefault(true);
  go->setMinimumWidth(200);
  layout->addWidget(go, 0, Qt::AlignHCenter);
  connect(go, &QPushButton::clicked, this, &QDialog::accept);
  setStyleSheet("QDialog#splash { background: #161c26; }");
}

void ShowSplash() {
  Splash splash;
  if (mf::UI.SoundOff == 0) mf::Plat().PlaySound(kIntroSound);
  splash.exec();
}

}  // namespace mf::app
