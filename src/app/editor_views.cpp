#include "editor_views.h"

#include <QFont>
#include <QFontDatabase>
#include <QListWidget>

namespace mf::app {

QListWidget* NewReportList(QWidget* parent) {
  auto* list = new QListWidget(parent);
  list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  return list;
}

void RegisterEditorViews() {
  RegisterStatusView();
  RegisterTypeInfoView();
  RegisterTypesView();
  RegisterRegimesView();
  RegisterCurrentUnitView();
  RegisterGeneralView();
}

}  // namespace mf::app
