// The main window of the game: menus, the map with its scroll bars, the
// minimap, the side panel, the order buttons, the help line and the status
// labels. Core decides what is shown through the UI fields; after every
// action of the player and every timer tick the window brings itself in line
// with them (SyncWithGame).
#pragma once

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace mf::app {

class MapWidget;
class Minimap;
class SidePanel;
class QtPlatform;
class AnalysisPanel;

// The order buttons of the map window, by the names scripts press them with,
// with the short caption on the button and the tool tip the rules give it.
struct OrderButtonDef {
  const char* name;
  const char* caption;
  const char* toolTip;
  const char* help;  // what the order does, for the button's tip
};
// The tip of an order button: its label, its key, and what it does.
QString OrderButtonTip(const OrderButtonDef& def, const std::string& label);
const std::vector<OrderButtonDef>& OrderButtonDefs();

// The window asks before what cannot be undone; scripts and the game's own
// flow never ask. A menu entry that replaces the game in play (new, load, a
// scenario, a random scenario) runs its command only when this says yes.
constexpr const char* kThrowAwayQuestion =
    "A game is in progress. Anything since your last save will be lost. Do you want to go on?";
constexpr const char* kThrowAwayTitle = "Game in progress";
constexpr const char* kSurrenderQuestion = "Do you really want to surrender? This cannot be undone.";
constexpr const char* kSurrenderTitle = "Surrender";
bool GameInProgress();
bool ThrowAwayGameConfirmed();
bool SurrenderConfirmed();

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindow(QtPlatform* platform);
  ~MainWindow() override;

  // Brings every part of the window in line with the UI fields.
  void SyncWithGame();
  // Loads a scenario or saved game as the Load command does after its file
  // dialog (LoadGameFile), and shows it.
  bool OpenFile(const QString& path);
  // Runs a command of the game and syncs; ignored while another command of
  // the player or a timer tick is still running (the game yields to the
  // event loop now and then) and while the game is busy (UI.BusyPointer).
  void Act(const std::function<void()>& command);
  // Quits without the question (screenshots, tests).
  void QuitNow();

  MapWidget* mapWidget() const { return map_; }
  Minimap* minimap() const { return minimap_; }
  SidePanel* sidePanel() const { return panel_; }
  QAction* action(const std::string& name) const;
  QPushButton* orderButton(const std::string& name) const;
  QTimer& timer() { return timer_; }

 protected:
  void closeEvent(QCloseEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  // The mouse over the map (the move-cost line) and presses on the panel's
  // big picture of the selected formation.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenus();
  QWidget* BuildCentre();
  QAction* AddAction(QMenu* menu, const std::string& name, const QString& text,
                     const std::function<void()>& command, bool checkable = false);
  // A menu entry that opens an editor or a report by its name.
  void AddMenuDialog(QMenu* menu, const std::string& name, const char* text);
  void LayOutOrderButtons(int perRow);
  void Tick();
  void ReloadPicturesIfNeeded();
  void ApplyMenuState();
  // The order buttons, the do and cancel buttons, "Next turn" and the order
  // line as the order machine has them.
  void ApplyButtons();
  void ShowOrderLine();
  // What decides whether the whole window must be drawn afresh.
  struct GameFace {
    long long turn, regime, editMode, mapW, mapH;
    bool mapShown;
    long long fogOfWar, fogOfExploration, spriteLoads;
    bool operator==(const GameFace&) const = default;
  };
  static GameFace CurrentFace();

  QtPlatform* platform_;
  MapWidget* map_ = nullptr;
  Minimap* minimap_ = nullptr;
  SidePanel* panel_ = nullptr;
  class PaintPanel* paintPanel_ = nullptr;
  QWidget* rightColumn_ = nullptr;
  QWidget* orderBar_ = nullptr;
  QGridLayout* orderGrid_ = nullptr;
  int orderButtonsPerRow_ = 0;
  AnalysisPanel* aiLog_ = nullptr;
  QLabel* regimeLabel_ = nullptr;
  QLabel* turnLabel_ = nullptr;
  QLabel* ppLabel_ = nullptr;
  QLabel* modeLabel_ = nullptr;
  QLabel* helpLine_ = nullptr;
  QLabel* orderLine_ = nullptr;
  QLabel* bigPicture_ = nullptr;
  std::map<std::string, QAction*> actions_;
  std::vector<std::string> menuDialogs_;  // entries of AddMenuDialog
  std::map<std::string, QPushButton*> buttons_;
  QTimer timer_;
  int acting_ = 0;
  int tickDepth_ = 0;  // ticks under way, nested while a tick's dialog waits
  bool syncing_ = false;
  GameFace lastFace_{};
  bool quitting_ = false;
  bool quitAfterTurn_ = false;  // the player quit during a computer turn
  bool tickQueued_ = false;     // the next computer turn is already asked for
};

}  // namespace mf::app
