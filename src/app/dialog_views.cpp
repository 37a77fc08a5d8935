#include "dialog_views.h"

#include <QApplication>
#include <QCursor>
#include <map>

#include "battle_view.h"
#include "clear_dialog_view.h"
#include "diplomatics_view.h"
#include "editor_views.h"
#include "event_view.h"
#include "new_turn_view.h"
#include "newunit_view.h"
#include "officerpool_view.h"
#include "random_scenario_view.h"
#include "research_view.h"
#include "start_game_view.h"
#include "transfer_view.h"
#include "urban_production_view.h"

namespace mf::app {
namespace {
std::map<std::string, DialogViewFn>& Views() {
  static std::map<std::string, DialogViewFn> views;
  return views;
}
}  // namespace

void RegisterDialogView(const std::string& name, DialogViewFn view) { Views()[name] = std::move(view); }

DialogViewFn FindDialogView(const std::string& name) {
  auto it = Views().find(name);
  return it == Views().end() ? DialogViewFn() : it->second;
}

void RunDialogWindow(QDialog& window, const mf::HumbleDialog& dialog, const std::function<void()>& closedByFrame,
                     DialogPointer pointer) {
  if (pointer == DialogPointer::kArrow) QApplication::setOverrideCursor(QCursor(Qt::ArrowCursor));
  if (dialog.IsOpen()) window.exec();
  if (pointer == DialogPointer::kArrow) QApplication::restoreOverrideCursor();
  if (dialog.IsOpen() && closedByFrame) closedByFrame();
}

void RegisterAllDialogViews() {
  // Each dialog module adds its registration here.
  RegisterBattleView();
  RegisterClearDialogView();
  RegisterDiplomaticsView();
  RegisterEditorViews();
  RegisterEventView();
  RegisterNewTurnView();
  RegisterNewUnitView();
  RegisterOfficerPoolView();
  RegisterRandomScenarioView();
  RegisterResearchView();
  RegisterStartGameView();
  RegisterTransferView();
  RegisterUrbanProductionView();
}

}  // namespace mf::app
