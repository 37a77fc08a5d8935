#include "random_scenario_view.h"
#include "view_text.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QCursor>
#include <QDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "dialog_views.h"
#include "random/random_dialog.h"
#include "start_choices_view.h"

namespace mf::app {
namespace {

using D = mf::RandomScenarioDialog;

QCheckBox* Box(const char* text, const char* name, QWidget* parent, QVBoxLayout* into) {
  auto* box = new QCheckBox(text, parent);
  box->setObjectName(name);
  into->addWidget(box);
  return box;
}

void ShowRandomScenario(mf::HumbleDialog& humble, QWidget* parent) {
  auto* dialog = dynamic_cast<D*>(&humble);
  if (!dialog) return;
  QDialog window(parent);
  window.setObjectName("randomScenarioDialog");
  window.setWindowTitle(D::kCaption);
  auto* layout = new QVBoxLayout(&window);

  // The map: size, land and the number of regimes.
  auto* mapForm = new QFormLayout();
  auto* size = new QLineEdit(Q(dialog->mapSizeText), &window);
  size->setObjectName("mapSize");
  auto* land = new QLineEdit(Q(dialog->landText), &window);
  land->setObjectName("land");
  mapForm->addRow(D::kMapSizeLabel, size);
  mapForm->addRow(D::kLandLabel, land);
  auto* regimeRow = new QHBoxLayout();
  auto* regimeGroup = new QButtonGroup(&window);
  QRadioButton* counts[mf::kRandomRows + 1] = {};
  for (int n = 1; n <= mf::kRandomRows; ++n) {
    counts[n] = new QRadioButton(QString::number(n), &window);
    counts[n]->setObjectName(QString("regimes%1").arg(n));
    regimeGroup->addButton(counts[n], n);
    regimeRow->addWidget(counts[n]);
  }
  mapForm->addRow(D::kRegimesLabel, regimeRow);
  layout->addLayout(mapForm);

  // One row per regime: name, "Human", e-mail.
  auto* grid = new QGridLayout();
  RegimeRowsView regimeRows(&window, grid, mf::kRandomRows, D::kHumanLabel, D::kEmailLimit - 1);
  RegimeRowsView* rowsView = &regimeRows;
  layout->addLayout(grid);

  // The options, in their three groups.
  auto* options = new QHBoxLayout();
  auto* game = new QGroupBox(D::kGameOptions, &window);
  auto* gameLayout = new QVBoxLayout(game);
  QCheckBox* pbem = Box(D::kPbemLabel, "pbem", game, gameLayout);
  QCheckBox* passwords = Box(D::kPasswordsLabel, "passwords", game, gameLayout);
  auto* fogGroup = new QGroupBox(D::kFogOptions, &window);
  auto* fogLayout = new QVBoxLayout(fogGroup);
  QCheckBox* fog = Box(D::kFogLabel, "fog", fogGroup, fogLayout);
  QCheckBox* exploration = Box(D::kExplorationLabel, "exploration", fogGroup, fogLayout);
  auto* ai = new QGroupBox(D::kAIOptions, &window);
  auto* aiLayout = new QVBoxLayout(ai);
  QCheckBox* aiBonus = Box(D::kAIBonusLabel, "aiBonus", ai, aiLayout);
  QCheckBox* allied = Box(D::kAlliedLabel, "allied", ai, aiLayout);
  auto* overrideRow = new QHBoxLayout();
  overrideRow->addWidget(new QLabel(D::kOverrideLabel, ai));
  auto* seed = new QLineEdit(Q(dialog->overrideText), ai);
  seed->setObjectName("override");
  overrideRow->addWidget(seed);
  aiLayout->addLayout(overrideRow);
  QCheckBox* realStart = Box(D::kRealStartLabel, "realStart", ai, aiLayout);
  options->addWidget(game);
  options->addWidget(fogGroup);
  options->addWidget(ai);
  layout->addLayout(options);
  const SwitchBoxes switches{fog, exploration, pbem, passwords, aiBonus};

  QPushButton* start = AddStartButtons(&window, layout, D::kCancelCaption, D::kStartCaption);

  // The dialog decides what every box ends up as; the window shows that.
  auto refresh = [=] {
    switches.Show(*dialog);
    const QSignalBlocker b6(allied), b7(realStart), b8(regimeGroup);
    allied->setChecked(dialog->allied);
    realStart->setChecked(dialog->realStart);
    counts[dialog->regimes]->setChecked(true);
    rowsView->Show(dialog->rows);
  };
  auto box = [&window, refresh](QCheckBox* b, void (D::*set)(bool), D* d) {
    QObject::connect(b, &QCheckBox::toggled, &window, [=](bool on) {
      (d->*set)(on);
      refresh();
    });
  };
  switches.ConnectTo(&window, dialog, refresh);
  box(allied, &D::SetAllied, dialog);
  box(realStart, &D::SetRealStart, dialog);
  QObject::connect(size, &QLineEdit::textEdited, &window, [dialog](const QString& t) { dialog->SetMapSize(t.toStdString()); });
  QObject::connect(land, &QLineEdit::textEdited, &window, [dialog](const QString& t) { dialog->SetLand(t.toStdString()); });
  QObject::connect(seed, &QLineEdit::textEdited, &window, [dialog](const QString& t) { dialog->SetOverride(t.toStdString()); });
  QObject::connect(regimeGroup, &QButtonGroup::idClicked, &window, [=](int n) {
    std::string why;
    dialog->SetRegimes(n, &why);
    refresh();
  });
  regimeRows.ConnectTo(&window, dialog, refresh);
  QObject::connect(start, &QPushButton::clicked, &window, [dialog, &window] {
    std::string why;
    // A refusal has shown its message; the dialog stays for the player to mend.
    dialog->StartButton(&why);
    if (!dialog->IsOpen()) window.accept();
  });
  refresh();

  // Cancel, Esc and the frame's close all cancel.
  RunDialogWindow(window, *dialog, [dialog] { dialog->CancelButton(); }, DialogPointer::kArrow);
}

}  // namespace

void RegisterRandomScenarioView() { RegisterDialogView("random", &ShowRandomScenario); }

}  // namespace mf::app
