// Qt views of the editors and the status reports, each in a file of its own;
// one call registers them all.
#pragma once

class QWidget;
class QListWidget;

namespace mf::app {

void RegisterEditorViews();

// The views of each dialog (status_view.cpp, type_info_view.cpp, ...).
void RegisterStatusView();
void RegisterTypeInfoView();
void RegisterTypesView();
void RegisterRegimesView();
void RegisterCurrentUnitView();
void RegisterGeneralView();

// A report list in a fixed-pitch font, as the reports line up by blanks.
QListWidget* NewReportList(QWidget* parent);

}  // namespace mf::app
