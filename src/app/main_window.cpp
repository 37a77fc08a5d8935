#include "main_window.h"

#include "analysis_panel.h"

#include "view_text.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QEvent>
#include <QMouseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ai/ai_state.h"
#include "control/editor_menu.h"
#include "control/keyboard.h"
#include "control/menu_state.h"
#include "control/order_state.h"
#include "control/scenario_flow.h"
#include "control/selection.h"
#include "control/turn_cycle.h"
#include "help_window.h"
#include "map_widget.h"
#include "minimap.h"
#include "paint_panel.h"
#include "editor/map_paint.h"
#include "model/bounds.h"
#include "model/clear_dialog.h"
#include "model/game_state.h"
#include "model/hex_geometry.h"
#include "orders/command.h"
#include "platform/platform.h"
#include "control/random_flow.h"
#include "random/random_dialog.h"
#include "qt_canvas.h"
#include "qt_platform.h"
#include "side_panel.h"
#include "view/canvas.h"
#include "view/panel.h"
#include "view/sprite_table.h"

namespace mf::app {
namespace {


constexpr int kTickMs = 100;
constexpr int kRightColumnW = 340;

const char* const kStyle = R"(
QMainWindow, QWidget#centre { background: #1b2028; }
QWidget#centre QLabel { color: #dde3ea; }
QFrame#statusBar { background: #11151b; border-bottom: 1px solid #2c3440; }
QLabel#regimeLabel { font-size: 16px; font-weight: bold; color: #f0d890; }
QLabel#turnLabel, QLabel#ppLabel, QLabel#modeLabel { font-size: 13px; color: #c8d0da; }
QFrame#sidePanel { background: #222934; border: 1px solid #2f3946; border-radius: 4px; }
QFrame#sidePanel QLabel { color: #dde3ea; }
QLabel#landLabel, QLabel#hexCoords, QLabel#unitName, QLabel#urbanName { color: #f0d890; }
QFrame#orderBar { background: #161b22; border-top: 1px solid #2c3440; }
QPushButton { background: #2d3644; color: #e4e9ef; border: 1px solid #465264; border-radius: 3px;
              padding: 3px 6px; }
QPushButton:hover { background: #3a4557; }
QPushButton:disabled { background: #232a34; color: #6b7584; border-color: #2f3742; }
QPushButton#do { background: #4a3b1c; border-color: #8a6d2c; font-weight: bold; }
QPushButton#do:disabled { background: #2a261c; color: #6b6454; border-color: #3a3426; }
QPushButton#cancel { font-weight: bold; }
QPushButton#nextturn { background: #2b4a2e; border-color: #4f8a55; font-weight: bold; font-size: 14px; }
QPushButton#nextturn:disabled { background: #1f2a21; color: #5f7062; border-color: #2c3a2e; }
QLabel#orderLine { font-size: 13px; font-weight: bold; color: #f0d890; }
QLabel#helpLine { background: #11151b; color: #f3e7c0; padding: 4px 8px; border-top: 1px solid #2c3440; }
QListWidget#aiLog { background: #10141a; color: #b8c4d0; border: 1px solid #2c3440; }
QScrollBar:vertical { background: #151a21; width: 14px; margin: 0; }
QScrollBar:horizontal { background: #151a21; height: 14px; margin: 0; }
QScrollBar::handle:vertical { background: #3c4758; min-height: 24px; border-radius: 5px; margin: 2px; }
QScrollBar::handle:horizontal { background: #3c4758; min-width: 24px; border-radius: 5px; margin: 2px; }
QScrollBar::handle:hover { background: #4d5a6e; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
)";

// Qt's keys as the key codes the game knows its keys by.
int GameKeyCode(int qtKey) {
  switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return mf::kKeyEnter;
    case Qt::Key_Escape:
      return mf::kKeyEscape;
    case Qt::Key_Space:
      return mf::kKeySpace;
    case Qt::Key_Left:
      return mf::kKeyLeft;
    case Qt::Key_Up:
      return mf::kKeyUp;
    case Qt::Key_Right:
      return mf::kKeyRight;
    case Qt::Key_Down:
      return mf::kKeyDown;
    case Qt::Key_F1:
      return mf::kKeyF1;
    case Qt::Key_F2:
      return mf::kKeyF2;
    case Qt::Key_F11:
      return mf::kKeyF11;
    case Qt::Key_F12:
      return mf::kKeyF12;
    default:
      break;
  }
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return 'A' + (qtKey - Qt::Key_A);
  return 0;
}

}  // namespace

bool GameInProgress() { return Game.Turn > 0 && UI.EditMode != 1; }

bool ThrowAwayGameConfirmed() {
  if (!GameInProgress()) return true;
  return mf::Plat().AskYesNo(kThrowAwayQuestion, kThrowAwayTitle);
}

bool SurrenderConfirmed() {
  if (!GameInProgress() || UI.BusyPointer) return true;  // the command itself ignores it then
  return mf::Plat().AskYesNo(kSurrenderQuestion, kSurrenderTitle);
}

QString OrderButtonTip(const OrderButtonDef& def, const std::string& label) {
  const int id = mf::OrderButtonByName(def.name);
  const int key = id >= 0 ? mf::OrderButtonOf(id).key : 0;
  QString tip = Q(label.empty() ? std::string(def.toolTip) : label);
  tip += key > 0 ? QString("   (key %1)").arg(QChar(key)) : QString("   (no key)");
  return tip + "\n" + def.help;
}

const std::vector<OrderButtonDef>& OrderButtonDefs() {
  static const std::vector<OrderButtonDef> defs = {
      {"move", "[M]ove", "[M]ove",
       "Move the selected formation: the hexes it can reach are outlined, a click on one moves it there."},
      {"attack", "[A]ttack", "[A]ttack",
       "Select an enemy hex first, then press Attack; join formations by clicking their pictures in the "
       "panel, then press DO ATTACK."},
      {"production", "[P]roduction", "[P]roduction", "Choose what the selected town of yours produces and which SHQ it serves."},
      {"command", "[C]ommand", "[C]hange Command", "Put the selected formation under another THQ or SHQ."},
      {"newunit", "[N]ew Unit", "[N]ew Unit", "Raise a new formation or HQ in the selected hex."},
      {"transfer", "[T]ransfer", "[T]ransfer", "Move troops and supply from the selected formation to another one."},
      {"officerpool", "[O]fficers", "[O]fficerpool", "Look at your officers and give one to a formation."},
      {"research", "[R]esearch", "[R]esearch", "Spend political points on research."},
      {"diplomatics", "[D]iplomacy", "[D]iplomatics", "Offer peace or declare war to the other regimes."},
      {"disband", "Disband", "Disband this unit", "Disband the selected formation."},
      {"entrench", "[E]ntrench", "[E]ntrench", "Let the selected infantry fortify a side of its hex: click the neighbour."},
      {"load", "[L]oad", "[L]oad", "Load a formation onto the selected ships."},
      {"unload", "[U]nload", "[U]nload", "Land the selected ships' cargo on a neighbouring hex."},
      {"interdict", "[I]nterdict", "[I]nterdict", "Send the selected aircraft against an enemy formation."},
      {"strategic", "[S]trat. bomb", "[S]trategic bombing", "Send the selected bombers against an enemy town."},
      {"airlift", "Airli[f]t", "Airli[f]t/drop", "Fly the formation the selected aircraft carry to a hex, or drop it there."},
      {"airsupply", "Air sup. [Y]", "Airtransfer [Y]", "Fly supply with the selected aircraft to a formation."},
  };
  return defs;
}

MainWindow::MainWindow(QtPlatform* platform) : platform_(platform) {
  setObjectName("mainWindow");
  setWindowTitle(mf::kProgramTitle);
  setStyleSheet(kStyle);
  setCentralWidget(BuildCentre());
  BuildMenus();
  setFocusPolicy(Qt::StrongFocus);

  mf::InstallMapCanvas(&map_->canvas());
  mf::InstallPanelHexCanvas(&panel_->hexCanvas());
  if (platform_) {
    platform_->SetParentWindow(this);
    // Behind every dialog the window shows the game as it is at that moment.
    platform_->SetBeforeDialog([this](const std::string&) { SyncWithGame(); });
  }

  connect(map_, &MapWidget::Acted, this, [this] { SyncWithGame(); });
  connect(map_, &MapWidget::HexDragged, this, [this](int x, int y) { Act([x, y] {
    if (!mf::PaintStrokeOpen()) return;
    mf::SelectHex(x, y);
    mf::PaintDragTo(x, y);
  }); });
  connect(map_, &MapWidget::ButtonReleased, this, [this] { Act([] { mf::EndPaintStroke(); }); });
  connect(map_, &MapWidget::HexPressed, this,
          [this](int x, int y, int button) { Act([x, y, button] { mf::ClickMap(x, y, button); }); });
  connect(minimap_, &Minimap::Acted, this, [this] { SyncWithGame(); });
  // A press on a formation's picture in the panel selects it, and while an
  // attack is being prepared joins it to the attack or takes it out again.
  connect(panel_, &SidePanel::StackSlotPressed, this,
          [this](int slot) { Act([slot] { mf::PanelPress(slot); }); });
  if (QLabel* big = panel_->findChild<QLabel*>("bigPicture")) {
    bigPicture_ = big;
    big->installEventFilter(this);
  }
  // A double click on the formation's name renames it.
  if (QLabel* name = panel_->findChild<QLabel*>("unitName")) name->installEventFilter(this);
  // The move-cost line follows the mouse over the map while a move is under way.
  map_->view()->setMouseTracking(true);
  map_->view()->installEventFilter(this);

  timer_.setInterval(kTickMs);
  connect(&timer_, &QTimer::timeout, this, [this] { Tick(); });
  timer_.start();

  resize(1280, 800);
  RequestRedraw(2);
  UI.PanelDirty = true;
}

MainWindow::~MainWindow() {
  timer_.stop();
  mf::InstallMapCanvas(nullptr);
  mf::InstallPanelHexCanvas(nullptr);
  if (platform_) {
    platform_->SetParentWindow(nullptr);
    platform_->SetBeforeDialog(nullptr);
    platform_->SetAnalysisSink(nullptr);
  }
}

QWidget* MainWindow::BuildCentre() {
  auto* centre = new QWidget(this);
  centre->setObjectName("centre");
  auto* outer = new QVBoxLayout(centre);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(0);

  // The status labels: whose turn, which turn, the political points.
  auto* status = new QFrame(centre);
  status->setObjectName("statusBar");
  auto* statusRow = new QHBoxLayout(status);
  statusRow->setContentsMargins(10, 4, 10, 4);
  statusRow->setSpacing(18);
  regimeLabel_ = new QLabel(status);
  regimeLabel_->setObjectName("regimeLabel");
  turnLabel_ = new QLabel(status);
  turnLabel_->setObjectName("turnLabel");
  ppLabel_ = new QLabel(status);
  ppLabel_->setObjectName("ppLabel");
  modeLabel_ = new QLabel(status);
  modeLabel_->setObjectName("modeLabel");
  statusRow->addWidget(regimeLabel_);
  statusRow->addWidget(turnLabel_);
  statusRow->addWidget(ppLabel_);
  statusRow->addStretch(1);
  orderLine_ = new QLabel(status);
  orderLine_->setObjectName("orderLine");
  orderLine_->hide();
  statusRow->addWidget(orderLine_);
  statusRow->addWidget(modeLabel_);
  outer->addWidget(status);

  auto* body = new QHBoxLayout();
  body->setContentsMargins(0, 0, 0, 0);
  body->setSpacing(0);

  // Left: the map, the analysis log, the order buttons.
  auto* left = new QVBoxLayout();
  left->setSpacing(0);
  auto* mapRow = new QHBoxLayout();
  mapRow->setSpacing(0);
  map_ = new MapWidget(centre);
  mapRow->addWidget(map_, 1);
  // The computer player's analysis beside the map, F11 outside the editor.
  aiLog_ = new AnalysisPanel(centre);
  aiLog_->setFixedWidth(320);
  aiLog_->hide();
  mapRow->addWidget(aiLog_);
  left->addLayout(mapRow, 1);
  if (platform_) platform_->SetAnalysisSink([this](const std::string& line) { aiLog_->Append(line); });

  orderBar_ = new QFrame(centre);
  orderBar_->setObjectName("orderBar");
  auto* orders = new QGridLayout(orderBar_);
  orders->setContentsMargins(6, 5, 6, 5);
  orders->setHorizontalSpacing(4);
  orders->setVerticalSpacing(4);
  orderGrid_ = orders;
  for (const auto& def : OrderButtonDefs()) {
    auto* b = new QPushButton(def.caption, orderBar_);
    b->setObjectName(def.name);
    b->setToolTip(OrderButtonTip(def, def.toolTip));
    b->setFocusPolicy(Qt::NoFocus);
    b->setEnabled(false);  // the orders enable them by the selection
    b->setMinimumWidth(60);
    buttons_[def.name] = b;
    const int id = mf::OrderButtonByName(def.name);
    connect(b, &QPushButton::clicked, this, [this, id] { Act([id] { mf::PressOrderButton(id); }); });
  }
  auto* doButton = new QPushButton(orderBar_);
  doButton->setObjectName("do");
  doButton->setFocusPolicy(Qt::NoFocus);
  doButton->setEnabled(false);
  doButton->setToolTip("Carries out the order under way, as its caption says   (keys Enter, Space)");
  doButton->setMinimumHeight(26);
  buttons_["do"] = doButton;
  connect(doButton, &QPushButton::clicked, this, [this] { Act([] { mf::DoButton(); }); });
  auto* cancel = new QPushButton("CANCEL ORDER", orderBar_);
  cancel->setObjectName("cancel");
  cancel->setFocusPolicy(Qt::NoFocus);
  cancel->setEnabled(false);
  cancel->setToolTip("Ends the order under way without doing it   (key Esc)");
  buttons_["cancel"] = cancel;
  connect(cancel, &QPushButton::clicked, this, [this] { Act([] { mf::DoCancel(); }); });
  LayOutOrderButtons(9);
  left->addWidget(orderBar_);
  body->addLayout(left, 1);

  // Right: the minimap, the side panel, the next turn button.
  rightColumn_ = new QWidget(centre);
  rightColumn_->setObjectName("rightColumn");
  rightColumn_->setFixedWidth(kRightColumnW);
  auto* right = new QVBoxLayout(rightColumn_);
  right->setContentsMargins(6, 6, 6, 6);
  right->setSpacing(6);
  minimap_ = new Minimap(rightColumn_);
  minimap_->setFixedHeight(190);
  right->addWidget(minimap_);
  paintPanel_ = new PaintPanel(rightColumn_, this, [this](std::function<void()> c) { Act(c); });
  right->addWidget(paintPanel_);
  panel_ = new SidePanel(rightColumn_);
  auto* scroll = new QScrollArea(rightColumn_);
  scroll->setObjectName("panelScroll");
  scroll->setWidget(panel_);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setStyleSheet("QScrollArea { background: transparent; } QScrollArea > QWidget > QWidget { background: transparent; }");
  right->addWidget(scroll, 1);
  auto* next = new QPushButton("Next turn", rightColumn_);
  next->setObjectName("nextturn");
  next->setToolTip("Next turn\nEnds your turn (after a question) and hands over to the next regime.");
  next->setFocusPolicy(Qt::NoFocus);
  next->setMinimumHeight(34);
  buttons_["nextturn"] = next;
  connect(next, &QPushButton::clicked, this, [this] { Act([] { mf::NextTurnButton(); }); });
  right->addWidget(next);
  body->addWidget(rightColumn_);
  outer->addLayout(body, 1);

  helpLine_ = new QLabel(centre);
  helpLine_->setObjectName("helpLine");
  helpLine_->setWordWrap(true);
  helpLine_->setMinimumHeight(26);
  outer->addWidget(helpLine_);
  return centre;
}

void MainWindow::LayOutOrderButtons(int perRow) {
  if (perRow == orderButtonsPerRow_) return;
  orderButtonsPerRow_ = perRow;
  const auto& defs = OrderButtonDefs();
  const int n = static_cast<int>(defs.size());
  for (int i = 0; i < n; ++i) orderGrid_->addWidget(buttons_[defs[i].name], i / perRow, i % perRow);
  // The do button and "CANCEL ORDER" on the row below, two thirds and a third.
  const int row = (n + perRow - 1) / perRow;
  orderGrid_->addWidget(buttons_["do"], row, 0, 1, perRow - perRow / 3);
  orderGrid_->addWidget(buttons_["cancel"], row, perRow - perRow / 3, 1, perRow / 3);
}

QAction* MainWindow::AddAction(QMenu* menu, const std::string& name, const QString& text,
                               const std::function<void()>& command, bool checkable) {
  QAction* a = menu->addAction(text);
  a->setObjectName(Q(name));
  a->setCheckable(checkable);
  // A command of the menus may change anything (a clear, a load, a refused
  // load, a start, a turn handed over): the whole window is brought up to date.
  connect(a, &QAction::triggered, this, [this, command] {
    Act([command] {
      command();
      RequestRedraw(2);
      UI.PanelDirty = true;
    });
  });
  actions_[name] = a;
  return a;
}

void MainWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  AddAction(file, "newScenario", "New Scenario...", [] {
    if (ThrowAwayGameConfirmed()) mf::NewScenarioCommand();
  });
  AddAction(file, "clearMap", "Clear Map...", [] { mf::ClearMapCommand(); });
  AddAction(file, "randomScenario", "Random Scenario...", [] { mf::StartRandomGame(); });
  file->addSeparator();
  AddAction(file, "load", "Load...", [] {
    if (ThrowAwayGameConfirmed()) mf::LoadCommand();
  });
  AddAction(file, "save", "Save...", [] { mf::SaveCommand(); });
  AddAction(file, "import", "Import Rules...", [] { mf::ImportCommand(); });
  file->addSeparator();
  for (int n = 1; n <= 4; ++n) {
    AddAction(file, "scenario" + std::to_string(n), QString("Scenario %1").arg(n), [n] {
      if (ThrowAwayGameConfirmed()) mf::LoadMenuScenario(n);
    });
  }
  file->addSeparator();
  QAction* quit = file->addAction("Quit");
  quit->setObjectName("quit");
  connect(quit, &QAction::triggered, this, [this] { close(); });
  actions_["quit"] = quit;

  QMenu* game = menuBar()->addMenu("&Game");
  AddAction(game, "start", "Start", [] { mf::StartCommand(); });
  AddAction(game, "endTurn", "End Turn", [] { mf::EndTurnCommand(); });
  AddAction(game, "surrender", "Surrender", [] {
    if (SurrenderConfirmed()) mf::SurrenderCommand();
  });
  game->addSeparator();
  for (const auto& e : mf::GameMenuEntries()) AddMenuDialog(game, e.name, e.text);
  // F3 opens the status reports, as the key beside the editor's F2.
  if (QAction* status = action("status")) status->setShortcut(QKeySequence(Qt::Key_F3));

  QMenu* view = menuBar()->addMenu("&View");
  const struct {
    const char* name;
    mf::DisplaySwitch which;
  } switches[] = {{"showEnemy", mf::DisplaySwitch::kShowEnemy},
                  {"showSight", mf::DisplaySwitch::kShowSight},
                  {"showSupply", mf::DisplaySwitch::kShowSupply},
                  {"showGrid", mf::DisplaySwitch::kShowGrid}};
  for (const auto& s : switches) {
    const mf::DisplaySwitch which = s.which;
    QAction* a = view->addAction(Q(mf::DisplaySwitchText(which)));
    a->setObjectName(s.name);
    a->setCheckable(true);
    // Only a flag and a redraw: the view may change while the computer plays.
    connect(a, &QAction::triggered, this, [this, which] {
      if (quitting_) return;
      mf::ToggleDisplaySwitch(which);
      SyncWithGame();
    });
    actions_[s.name] = a;
  }
  view->addSeparator();
  auto* zoom1 = view->addAction("Zoom 1x");
  auto* zoom2 = view->addAction("Zoom 2x");
  zoom1->setObjectName("zoom1");
  zoom2->setObjectName("zoom2");
  zoom1->setCheckable(true);
  zoom2->setCheckable(true);
  zoom1->setChecked(true);
  auto* zooms = new QActionGroup(this);
  zooms->addAction(zoom1);
  zooms->addAction(zoom2);
  // Ctrl and the wheel zoom too; the menu's tick follows.
  connect(map_, &MapWidget::ZoomChanged, this, [zoom1, zoom2](int z) { (z == 2 ? zoom2 : zoom1)->setChecked(true); });
  connect(zoom1, &QAction::triggered, this, [this] { map_->SetZoom(1); });
  connect(zoom2, &QAction::triggered, this, [this] { map_->SetZoom(2); });
  actions_["zoom1"] = zoom1;
  actions_["zoom2"] = zoom2;

  QMenu* edit = menuBar()->addMenu("&Edit");
  AddAction(edit, "editor", "Editor", [] { mf::ToggleEditor(); }, true);
  edit->addSeparator();
  for (const auto& e : mf::EditMenuEntries()) AddMenuDialog(edit, e.name, e.text);

  // Help can be read at any time, also while the computer plays: the windows
  // stand beside the game and change nothing in it.
  QMenu* help = menuBar()->addMenu("&Help");
  const struct {
    const char* name;
    const char* text;
    const char* window;
    QString (*html)();
  } pages[] = {{"howToPlay", "How to play", "howToPlayWindow", &HowToPlayText},
               {"about", "About", "aboutWindow", &AboutText}};
  for (const auto& page : pages) {
    QAction* a = help->addAction(page.text);
    a->setObjectName(page.name);
    const QString window = page.window, title = page.text;
    auto html = page.html;
    connect(a, &QAction::triggered, this, [this, window, title, html] {
      auto* w = findChild<HelpWindow*>(window);
      if (!w) w = new HelpWindow(window, title == "About" ? "About Marrowfield" : title, html(), this);
      w->show();
      w->raise();
    });
    actions_[page.name] = a;
  }
}

void MainWindow::AddMenuDialog(QMenu* menu, const std::string& name, const char* text) {
  AddAction(menu, name, text, [name] {
    std::string why;
    mf::OpenMenuDialog(name, &why);
  });
  menuDialogs_.push_back(name);
}

QAction* MainWindow::action(const std::string& name) const {
  auto it = actions_.find(name);
  return it == actions_.end() ? nullptr : it->second;
}

QPushButton* MainWindow::orderButton(const std::string& name) const {
  auto it = buttons_.find(name);
  return it == buttons_.end() ? nullptr : it->second;
}

void MainWindow::Act(const std::function<void()>& command) {
  // A tick may be running the turn driver or the computer player, which
  // yield to the event loop; the menus may not have caught up with that yet.
  if (acting_ > 0 || tickDepth_ > 0 || UI.BusyPointer || quitting_) return;
  ++acting_;
  command();
  --acting_;
  SyncWithGame();
}

bool MainWindow::OpenFile(const QString& path) {
  bool ok = false;
  Act([&] { ok = mf::LoadGameFile(path.toStdString()); });
  return ok;
}

void MainWindow::Tick() {
  // The timer keeps ticking while a modal dialog that a tick opened waits,
  // such as a human's New Turn dialog right after a computer turn ended on a
  // tick. Core's tick may be entered again: the driver marks itself busy
  // while it works, and a human's turn is never ended by the timer.
  if (quitting_) return;
  ++tickDepth_;
  mf::TimerTick();
  --tickDepth_;
  SyncWithGame();
}

void MainWindow::ReloadPicturesIfNeeded() {
  if (!Sprites().Stale()) return;
  // The sprite table is scanned again after every load and import of a
  // file: new pictures, and a map that has not been drawn yet.
  RequestRedraw(2);
  UI.PanelDirty = true;
  if (Sprites().Reload()) return;
  // A picture of the fixed set is missing: the game cannot draw its map.
  mf::Plat().ShowMessage(Sprites().Problem().toStdString(), "");
  QuitNow();
}

void MainWindow::ApplyMenuState() {
  const mf::MenuState m = mf::GetMenuState();
  const std::pair<const char*, bool> enabled[] = {
      {"newScenario", m.newScenario}, {"clearMap", m.clearMap}, {"randomScenario", m.randomScenario}, {"load", m.load},
      {"save", m.save},               {"import", m.import},     {"scenario1", m.scenarios},
      {"scenario2", m.scenarios},     {"scenario3", m.scenarios}, {"scenario4", m.scenarios},
      {"quit", m.quit},               {"start", m.start},       {"endTurn", m.endTurn},
      {"surrender", m.surrender},     {"editor", m.editor}};
  for (const auto& [name, on] : enabled) {
    if (QAction* a = action(name)) a->setEnabled(on);
  }
  for (const auto& name : menuDialogs_) {
    if (QAction* a = action(name)) a->setEnabled(mf::MenuDialogEnabled(name));
  }
  const std::pair<const char*, bool> checked[] = {{"showEnemy", m.showEnemy},
                                                  {"showSight", m.showSight},
                                                  {"showSupply", m.showSupply},
                                                  {"showGrid", m.showGrid},
                                                  {"editor", m.editorChecked}};
  for (const auto& [name, on] : checked) {
    if (QAction* a = action(name)) a->setChecked(on);
  }
}

MainWindow::GameFace MainWindow::CurrentFace() {
  return GameFace{Game.Turn,     Game.CurRegime, UI.EditMode,       Game.MapW,          Game.MapH,
                  UI.MapShown,   Game.FogOfWar,  Game.FogOfExploration, mf::SpriteLoadCount()};
}

void MainWindow::SyncWithGame() {
  if (syncing_ || quitting_) return;
  // The player quit while the computer was at work: its turn has stopped
  // after the stage it was in, and now the program ends.
  if (quitAfterTurn_ && !UI.BusyPointer && tickDepth_ == 0) {
    quitAfterTurn_ = false;
    AI.StopRequested = false;
    QuitNow();
    close();
    return;
  }
  syncing_ = true;
  ReloadPicturesIfNeeded();
  if (quitting_) {
    syncing_ = false;
    return;
  }

  // Another game, regime, turn or mode than at the last sync: everything is
  // drawn afresh, whatever the game asked for.
  const GameFace face = CurrentFace();
  // A view that only scrolled shows the same map: its minimap picture stays.
  const bool scrolledOnly = map_->TakeScrolledOnly() && face == lastFace_;
  if (face != lastFace_) {
    lastFace_ = face;
    RequestRedraw(2);
    UI.PanelDirty = true;
  }

  // The map: scroll bars, then what the game asked to be redrawn.
  // While the computer plays, and until the timer ends its turn, the map is
  // only watched: a press on it would give orders to the computer's units.
  const bool computerToMove = UI.EditMode == 0 && Game.Turn > 0 && mf::ComputerToMove();
  map_->SetInteractive(!UI.BusyPointer && !computerToMove);
  map_->SyncFromGame();
  const bool redraw = UI.RedrawRequest > 0;
  map_->RedrawRequested();
  map_->SyncFromGame();
  if (redraw && !scrolledOnly) minimap_->Rebuild();
  minimap_->update();

  // The side panel for the selected hex.
  if (UI.PanelDirty) {
    UI.PanelDirty = false;
    mf::Refresh(static_cast<int>(UI.SelX), static_cast<int>(UI.SelY));
    panel_->ShowContent();
  }

  // The header names a regime, a turn and points only while a game is in
  // play: after a clear or a refused load no regime of a game now gone stays.
  const bool inPlay = Game.Turn > 0;
  regimeLabel_->setText(inPlay ? Q(UI.RegimeLabel) : UI.EditMode == 1 ? QString("Editing") : QString());
  turnLabel_->setText(!inPlay || UI.TurnLabel.empty() ? QString() : "Turn " + Q(UI.TurnLabel));
  ppLabel_->setText(!inPlay || mf::Panel.ppText.empty() ? QString() : "PP " + Q(mf::Panel.ppText));
  modeLabel_->setText(UI.EditMode == 1 ? QString("EDITING   %1 x %2").arg(Game.MapW).arg(Game.MapH) : QString());
  helpLine_->setText(Q(UI.HelpText));
  setWindowTitle(UI.WindowTitle.empty() ? QString(mf::kProgramTitle) : Q(UI.WindowTitle));

  map_->setVisible(true);
  rightColumn_->setVisible(UI.PanelsShown);
  orderBar_->setVisible(UI.MapControlsShown);
  aiLog_->setVisible(UI.AILogShown);
  ApplyButtons();
  paintPanel_->Sync();
  buttons_["nextturn"]->setVisible(UI.MapControlsShown);
  if (platform_) platform_->SetBusy(UI.BusyPointer);
  ApplyMenuState();
  map_->view()->update();
  syncing_ = false;

  // A computer regime has finished its turn and hands on to another
  // computer regime: that turn starts at once instead of at the timer's next
  // tick, so that computer regimes follow each other at the computer's
  // speed. Queued behind what is pending, so the window still paints and
  // moves between two turns. A person's turn begins on the timer's tick.
  const int next = Game.CurRegime >= Game.RegimeCount ? 1 : static_cast<int>(Game.CurRegime) + 1;
  const bool computerWaiting =
      Game.Turn > 0 && UI.EditMode != 1 && mf::ComputerToMove() && !UI.BusyPointer && mf::RunByComputer(next);
  if (computerWaiting && !tickQueued_ && !quitAfterTurn_) {
    tickQueued_ = true;
    QTimer::singleShot(0, this, [this] {
      tickQueued_ = false;
      Tick();
    });
  }
}

void MainWindow::ApplyButtons() {
  // The buttons follow the selection as the order machine sees it; while an
  // order is under way it leaves them as the order set them.
  mf::RefreshButtons();
  const mf::ButtonState& b = mf::Buttons;
  for (const auto& def : OrderButtonDefs()) {
    const int id = mf::OrderButtonByName(def.name);
    if (id < 0) continue;
    QPushButton* button = buttons_[def.name];
    button->setEnabled(b.order[id].enabled && !UI.BusyPointer);
    button->setToolTip(OrderButtonTip(def, b.order[id].caption));
  }
  buttons_["do"]->setText(Q(b.doButton.caption));
  buttons_["do"]->setEnabled(b.doButton.enabled && !UI.BusyPointer);
  buttons_["cancel"]->setEnabled(b.cancel.enabled && !UI.BusyPointer);
  QPushButton* next = buttons_["nextturn"];
  // During the computer's turn the button shows how far it has got.
  next->setText(Q(b.nextTurn.caption));
  next->setEnabled(b.nextTurn.enabled && !UI.BusyPointer);
  ShowOrderLine();
}

void MainWindow::ShowOrderLine() {
  orderLine_->setText(Q(mf::Buttons.orderLine));
  orderLine_->setVisible(mf::Buttons.orderLineShown && UI.MapControlsShown);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == map_->view() && event->type() == QEvent::MouseMove) {
    if (UI.Order.SelOrderMove > 0 && !UI.BusyPointer && !quitting_) {
      const QPoint pos = static_cast<QMouseEvent*>(event)->position().toPoint();
      const int zoom = map_->Zoom();
      const mf::HexXY h = mf::PixelToHex(pos.x() / zoom, pos.y() / zoom, static_cast<int>(UI.ScrollX),
                                         static_cast<int>(UI.ScrollY));
      mf::HoverMap(h.x, h.y);
      ShowOrderLine();
    }
    return false;
  }
  if (event->type() == QEvent::MouseButtonDblClick && watched->objectName() == "unitName") {
    Act([] { mf::doRename(); });
    return true;
  }
  if (watched == bigPicture_ && event->type() == QEvent::MouseButtonPress) {
    // The big picture is the selected formation: the same as a press on its counter.
    Act([] { mf::PanelPress(static_cast<int>(UI.SelSlot)); });
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::QuitNow() {
  if (quitting_) return;
  quitting_ = true;
  timer_.stop();
  QApplication::exit(0);
}

void MainWindow::closeEvent(QCloseEvent* e) {
  if (quitting_) {
    e->accept();
    return;
  }
  // Asked while the computer plays (its stages yield to the window), the
  // question answered Yes stops the computer after its current stage; the
  // program then ends when the driver has returned.
  const bool computerAtWork = UI.BusyPointer || tickDepth_ > 0;
  if (quitAfterTurn_) {
    e->ignore();
    return;
  }
  if (mf::Plat().AskYesNo("Are you sure you want to quit?", "")) {
    if (computerAtWork) {
      quitAfterTurn_ = true;
      AI.StopRequested = true;
      e->ignore();
      return;
    }
    quitting_ = true;
    timer_.stop();
    e->accept();
    QApplication::quit();
    return;
  }
  e->ignore();
}

void MainWindow::keyPressEvent(QKeyEvent* e) {
  const int code = GameKeyCode(e->key());
  const bool arrow = code == mf::kKeyLeft || code == mf::kKeyRight || code == mf::kKeyUp || code == mf::kKeyDown;
  // A held key repeats only for scrolling; a held F1 must not flicker the sound.
  if (code == 0 || (e->isAutoRepeat() && !arrow)) {
    QMainWindow::keyPressEvent(e);
    return;
  }
  Act([code] { mf::KeyDown(code); });
  e->accept();
}

void MainWindow::resizeEvent(QResizeEvent* e) {
  QMainWindow::resizeEvent(e);
  UI.WindowWidth = width();
  // Narrow windows get the order buttons in three rows, so every caption fits.
  LayOutOrderButtons(width() < 1200 ? 6 : 9);
}

}  // namespace mf::app
