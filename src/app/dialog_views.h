// Qt views of the game's humble dialogs, found by the dialog's name. Each
// view module registers its views in RegisterAllDialogViews; the Qt platform
// runs a dialog through the view registered for its name.
#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "platform/platform.h"

namespace mf::app {

// Shows the dialog modally and forwards the person's actions until it closes.
using DialogViewFn = std::function<void(mf::HumbleDialog& dialog, QWidget* parent)>;

void RegisterDialogView(const std::string& name, DialogViewFn view);
// The view for a dialog name, or an empty function.
DialogViewFn FindDialogView(const std::string& name);
// Registers the views of every module (one line per module).
void RegisterAllDialogViews();

}  // namespace mf::app
