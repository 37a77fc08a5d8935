// The splash screen: the title picture, the intro sound, and a button that
// opens the game.
#pragma once

#include <QDialog>
#include <QImage>

namespace mf::app {

// The title picture, painted from the game's own sprites.
QImage SplashPicture();

class Splash : public QDialog {
  Q_OBJECT
 public:
  explicit Splash(QWidget* parent = nullptr);
};

// Shows the splash, plays "intro.wav" unless sound is off, and waits for the
// button.
void ShowSplash();

}  // namespace mf::app
