#include "transfer_view.h"
#include "view_text.h"

#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "orders/transfer.h"

namespace mf::app {
namespace {

using Dialog = mf::TransferDialog;


// A slider and a box for the same quantity; either sets it.
struct QuantityRow {
  QLabel* word = nullptr;
  QLabel* type = nullptr;
  QSlider* slider = nullptr;
  QSpinBox* box = nullptr;
  QLabel* available = nullptr;

  void Add(QGridLayout* grid, int row, QWidget* parent, const QString& name, const QString& label) {
    word = new QLabel(label, parent);
    type = new QLabel(parent);
    type->setObjectName(name + "Type");
    slider = new QSlider(Qt::Horizontal, parent);
    slider->setObjectName(name);
    slider->setMinimumWidth(200);
    box = new QSpinBox(parent);
    box->setObjectName(name + "Box");
    available = new QLabel(parent);
    available->setObjectName(name + "Available");
    grid->addWidget(word, row, 0);
    grid->addWidget(type, row, 1);
    grid->addWidget(slider, row, 2);
    grid->addWidget(box, row, 3);
    grid->addWidget(available, row, 4);
  }
  void Show(bool on, const std::string& typeName, long chosen, long avail) const {
    for (QWidget* w : {static_cast<QWidget*>(word), static_cast<QWidget*>(type), static_cast<QWidget*>(slider),
                       static_cast<QWidget*>(box), static_cast<QWidget*>(available)})
      w->setVisible(on);
    const QSignalBlocker b1(slider);
    const QSignalBlocker b2(box);
    type->setText(Q(typeName));
    slider->setRange(0, static_cast<int>(avail));
    box->setRange(0, static_cast<int>(avail));
    slider->setValue(static_cast<int>(chosen));
    box->setValue(static_cast<int>(chosen));
    slider->setEnabled(on && !typeName.empty());
    box->setEnabled(on && !typeName.empty());
    available->setText("/ " + QString::number(avail));
  }
};

void ShowTransfer(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<Dialog*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("transferDialog");
  window.setWindowTitle(Dialog::kCaption);
  auto* layout = new QVBoxLayout(&window);

  // The pool of an SHQ source, with its add button.
  auto* stockPart = new QWidget(&window);
  auto* stockLayout = new QHBoxLayout(stockPart);
  stockLayout->setContentsMargins(0, 0, 0, 0);
  auto* stock = new QListWidget(stockPart);
  stock->setObjectName("stock");
  stock->setMaximumHeight(120);
  auto* add = new QPushButton(Dialog::kAdd, stockPart);
  add->setObjectName("add");
  stockLayout->addWidget(stock, 1);
  stockLayout->addWidget(add, 0, Qt::AlignTop);
  layout->addWidget(stockPart);
  stockPart->setVisible(dialog->listShown);
  for (const auto& row : dialog->stockRows) stock->addItem(Q(row));

  // The class rows and the supply row.
  auto* grid = new QGridLayout();
  QuantityRow rows[5];
  static const char* const kNames[5] = {"", "inf", "mob", "art", "arm"};
  for (int c = 1; c <= 4; ++c) rows[c].Add(grid, c - 1, &window, kNames[c], Dialog::RowWord(c));
  QuantityRow supply;
  supply.Add(grid, 4, &window, "supply", "Supply");
  layout->addLayout(grid);

  // Transport: what the source can carry and what this costs.
  auto* costs = new QGridLayout();
  auto* landCap = new QLabel(&window);
  landCap->setObjectName("landCap");
  auto* seaCap = new QLabel(&window);
  seaCap->setObjectName("seaCap");
  auto* landCost = new QLabel(&window);
  landCost->setObjectName("landCost");
  auto* seaCost = new QLabel(&window);
  seaCost->setObjectName("seaCost");
  costs->addWidget(new QLabel("Land transport capacity:", &window), 0, 0);
  costs->addWidget(landCap, 0, 1);
  costs->addWidget(new QLabel("Land transport cost:", &window), 0, 2);
  costs->addWidget(landCost, 0, 3);
  costs->addWidget(new QLabel("Sea transport capacity:", &window), 1, 0);
  costs->addWidget(seaCap, 1, 1);
  costs->addWidget(new QLabel("Sea transport cost:", &window), 1, 2);
  costs->addWidget(seaCost, 1, 3);
  auto* distance = new QLabel(&window);
  distance->setObjectName("distance");
  costs->addWidget(distance, 2, 0, 1, 4);
  layout->addLayout(costs);
  auto* message = new QLabel(&window);
  message->setObjectName("message");
  message->setWordWrap(true);
  QFont bold = message->font();
  bold.setBold(true);
  message->setFont(bold);
  layout->addWidget(message);

  auto* buttons = new QHBoxLayout();
  auto* transfer = new QPushButton(Dialog::kTransfer, &window);
  transfer->setObjectName("transfer");
  transfer->setDefault(true);
  auto* cancel = new QPushButton(Dialog::kCancel, &window);
  cancel->setObjectName("cancel");
  buttons->addStretch(1);
  buttons->addWidget(transfer);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);

  auto refresh = [=, &window, &rows, &supply] {
    for (int c = 1; c <= 4; ++c) {
      const mf::TransferRow& r = dialog->rows[c];
      rows[c].Show(true, dialog->rowText[c], r.chosen, r.available);
    }
    supply.Show(dialog->supplyShown, dialog->supplyShown ? "Supply points" : "", dialog->supplyChosen,
                dialog->supplyAvailable);
    add->setEnabled(dialog->stockRow >= 0);
    landCap->setText(Q(dialog->landCapText));
    seaCap->setText(Q(dialog->seaCapText));
    landCost->setText(Q(dialog->landCostText));
    seaCost->setText(Q(dialog->seaCostText));
    distance->setText(dialog->distance < 999 ? "Distance: " + QString::number(dialog->distance) : QString());
    message->setText(Q(dialog->MessageText));
    if (!dialog->IsOpen()) window.accept();
  };

  QObject::connect(stock, &QListWidget::currentRowChanged, &window, [dialog, refresh](int row) {
    std::string why;
    if (row >= 0) dialog->SelectStock(row, &why);
    refresh();
  });
  QObject::connect(add, &QPushButton::clicked, &window, [dialog, refresh] {
    std::string why;
    dialog->Add(&why);
    refresh();
  });
  for (int c = 1; c <= 4; ++c) {
    auto set = [dialog, refresh, c](int value) {
      std::string why;
      dialog->SetChosen(c, value, &why);
      refresh();
    };
    QObject::connect(rows[c].slider, &QSlider::valueChanged, &window, set);
    QObject::connect(rows[c].box, &QSpinBox::valueChanged, &window, set);
  }
  auto setSupply = [dialog, refresh](int value) {
    std::string why;
    dialog->SetSupply(value, &why);
    refresh();
  };
  QObject::connect(supply.slider, &QSlider::valueChanged, &window, setSupply);
  QObject::connect(supply.box, &QSpinBox::valueChanged, &window, setSupply);
  // "Transfer" beyond the capacity does nothing; the labels tell why.
  QObject::connect(transfer, &QPushButton::clicked, &window, [dialog, refresh] {
    std::string why;
    dialog->Transfer(&why);
    refresh();
  });
  QObject::connect(cancel, &QPushButton::clicked, &window, [dialog, refresh] {
    std::string why;
    dialog->Cancel(&why);
    refresh();
  });
  refresh();

  // Esc and the frame's close button cancel.
  RunDialogWindow(window, *dialog, [dialog] {
    std::string why;
    dialog->Cancel(&why);
  });
}

}  // namespace

void RegisterTransferView() { RegisterDialogView("transfer", &ShowTransfer); }

}  // namespace mf::app
