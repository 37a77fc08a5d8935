// Qt views of the game's humble dialogs, found by the dialog's name. Each
// view module registers its views in RegisterAllDialogViews; the Qt platform
// runs a dialog through the view registered for its name.
#pragma once

#include <QDialog>
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

// How the pointer looks while a dialog's window is up: as it was, or the
// ordinary arrow for a window that comes up while the turn changes hands
// under the busy pointer.
enum class DialogPointer { kAsItIs, kArrow };

// Runs a dialog's window modally while the dialog is open; exec() runs the
// event loop, so the main window's timer keeps ticking. A window closed by
// Esc or its frame while the dialog is still open gets `closedByFrame`, the
// dialog's own close, cancel or exit, so that its close rules hold whichever
// way the window went.
void RunDialogWindow(QDialog& window, const mf::HumbleDialog& dialog, const std::function<void()>& closedByFrame,
                     DialogPointer pointer = DialogPointer::kAsItIs);

}  // namespace mf::app
