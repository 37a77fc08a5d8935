// The Current Unit dialog's window: the unit's class lines, the list of
// types with the quantity box, and a table of its other fields.
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QHeaderView>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "editor/current_unit_dialog.h"
#include "editor_views.h"
#include "view_text.h"

namespace mf::app {
namespace {

void ShowCurrentUnit(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<mf::CurrentUnitDialog*>(&humble);
  if (!dialog) return;
  using D = mf::CurrentUnitDialog;
  QDialog window(parent);
  window.setObjectName("currentUnitDialog");
  window.setWindowTitle(D::kCaption);
  window.resize(820, 560);
  auto* layout = new QHBoxLayout(&window);

  auto* left = new QVBoxLayout();
  auto* number = new QLabel(&window);
  number->setObjectName("number");
  left->addWidget(number);
  auto* classes = NewReportList(&window);
  classes->setObjectName("classes");
  classes->setMaximumHeight(150);
  left->addWidget(classes);
  auto* types = new QListWidget(&window);
  types->setObjectName("types");
  left->addWidget(new QLabel("Pick a type, enter a quantity and set the class:", &window));
  left->addWidget(types, 1);
  auto* qtyRow = new QHBoxLayout();
  auto* qty = new QLineEdit(&window);
  qty->setObjectName("qty");
  auto* setClass = new QPushButton(D::kSetClass, &window);
  setClass->setObjectName("setclass");
  qtyRow->addWidget(new QLabel("Quantity:", &window));
  qtyRow->addWidget(qty);
  qtyRow->addWidget(setClass);
  left->addLayout(qtyRow);
  auto* buttons = new QHBoxLayout();
  auto* copy = new QPushButton(D::kCopyFrom, &window);
  copy->setObjectName("copyfrom");
  auto* stock = new QPushButton(D::kStock, &window);
  stock->setObjectName("stock");
  auto* stockLine = new QLabel(&window);
  stockLine->setObjectName("stockLine");
  buttons->addWidget(copy);
  buttons->addWidget(stock);
  buttons->addWidget(stockLine);
  left->addLayout(buttons);
  layout->addLayout(left, 1);

  auto* right = new QVBoxLayout();
  auto* table = new QTableWidget(&window);
  table->setObjectName("fields");
  table->setColumnCount(2);
  table->setHorizontalHeaderLabels({"Field", "Value"});
  table->horizontalHeader()->setStretchLastSection(true);
  table->verticalHeader()->setVisible(false);
  right->addWidget(table, 1);
  auto* close = new QPushButton(D::kClose, &window);
  close->setObjectName("close");
  right->addWidget(close);
  layout->addLayout(right, 1);

  auto refresh = [=, &window] {
    number->setText(Q(dialog->numberLine));
    FillList(classes, dialog->classLines, -1);
    FillList(types, dialog->typeRows, dialog->typeRow);
    stock->setEnabled(dialog->stockEnabled);
    stockLine->setText(Q(dialog->stockLine));
    {
      const QSignalBlocker block(table);
      table->setRowCount(static_cast<int>(dialog->fields.size()));
      for (std::size_t i = 0; i < dialog->fields.size(); ++i) {
        const auto& f = dialog->fields[i];
        auto* label = new QTableWidgetItem(Q(f.name));
        label->setFlags(Qt::ItemIsEnabled);
        auto* value = new QTableWidgetItem(Q(f.value));
        if (!f.editable) value->setFlags(Qt::ItemIsEnabled);
        else if (!f.text) value->setToolTip(QString("%1 to %2").arg(f.lo).arg(f.hi));
        table->setItem(static_cast<int>(i), 0, label);
        table->setItem(static_cast<int>(i), 1, value);
      }
    }
    if (!dialog->IsOpen()) window.accept();
  };
  OnRowPicked(types, &window, refresh, [dialog](int row, std::string* why) { dialog->PickType(row + 1, why); });
  OnPress(setClass, &window, refresh, [dialog, qty] { dialog->SetClassButton(qty->text().toStdString()); });
  OnPress(copy, &window, refresh, [dialog] { dialog->CopyFromButton(); });
  OnPress(stock, &window, refresh, [dialog] { dialog->StockButton(); });
  OnPress(close, &window, refresh, [dialog] { dialog->CloseButton(); });
  QObject::connect(table, &QTableWidget::itemChanged, &window, [dialog, table, refresh](QTableWidgetItem* item) {
    if (item->column() != 1) return;
    const std::string name = table->item(item->row(), 0)->text().toStdString();
    std::string why;
    dialog->SetField(name, item->text().toStdString(), &why);
    // Refilled after the table has finished with the item it delivered.
    QMetaObject::invokeMethod(table, refresh, Qt::QueuedConnection);
  });
  refresh();
  RunDialogWindow(window, *dialog, [dialog] { dialog->CloseButton(); });
}

}  // namespace

void RegisterCurrentUnitView() { RegisterDialogView("currentunit", &ShowCurrentUnit); }

}  // namespace mf::app
