// The keys of a dialog window: Enter and Space press its main action, from
// wherever the focus stands (except where they are typed as text), and no
// other button takes Enter over by having had the focus.
#pragma once

#include <QDialog>
#include <QPushButton>

namespace mf::app {

// Makes `main` the action of Enter and Space in `dialog`. Call it once the
// dialog's widgets exist.
void SetMainAction(QDialog* dialog, QPushButton* main);

}  // namespace mf::app
