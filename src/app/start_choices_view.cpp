#include "start_choices_view.h"

#include <QCheckBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <string>
#include <utility>

#include "view_text.h"

namespace mf::app {

QPushButton* AddStartButtons(QDialog* window, QBoxLayout* layout, const QString& cancelCaption,
                             const QString& startCaption) {
  auto* buttons = new QHBoxLayout();
  auto* cancel = new QPushButton(cancelCaption, window);
  cancel->setObjectName("cancel");
  auto* start = new QPushButton(startCaption, window);
  start->setObjectName("start");
  start->setDefault(true);
  buttons->addStretch(1);
  buttons->addWidget(cancel);
  buttons->addWidget(start);
  layout->addLayout(buttons);
  QObject::connect(cancel, &QPushButton::clicked, window, [window] { window->reject(); });
  return start;
}

void SwitchBoxes::Show(const mf::StartChoices& dialog) const {
  const QSignalBlocker b1(fog), b2(exploration), b3(pbem), b4(passwords), b5(aiBonus);
  fog->setChecked(dialog.fog);
  exploration->setChecked(dialog.exploration);
  pbem->setChecked(dialog.pbem);
  passwords->setChecked(dialog.passwords);
  aiBonus->setChecked(dialog.aiBonus);
}

void SwitchBoxes::ConnectTo(QWidget* window, mf::StartChoices* dialog, const std::function<void()>& refresh) const {
  using D = mf::StartChoices;
  const std::pair<QCheckBox*, void (D::*)(bool)> boxes[] = {{fog, &D::SetFog},
                                                           {exploration, &D::SetExploration},
                                                           {pbem, &D::SetPbem},
                                                           {passwords, &D::SetPasswords},
                                                           {aiBonus, &D::SetAIBonus}};
  for (const auto& [box, set] : boxes) {
    QObject::connect(box, &QCheckBox::toggled, window, [=](bool on) {
      (dialog->*set)(on);
      refresh();
    });
  }
}

RegimeRowsView::RegimeRowsView(QWidget* window, QGridLayout* grid, int count, const QString& humanLabel,
                               int emailLength)
    : count_(count),
      names_(static_cast<std::size_t>(count) + 1, nullptr),
      humans_(static_cast<std::size_t>(count) + 1, nullptr),
      emails_(static_cast<std::size_t>(count) + 1, nullptr) {
  for (int r = 1; r <= count; ++r) {
    const auto i = static_cast<std::size_t>(r);
    names_[i] = new QLabel(window);
    humans_[i] = new QCheckBox(humanLabel, window);
    humans_[i]->setObjectName(QString("human%1").arg(r));
    emails_[i] = new QLineEdit(window);
    emails_[i]->setObjectName(QString("email%1").arg(r));
    if (emailLength > 0) emails_[i]->setMaxLength(emailLength);
    grid->addWidget(names_[i], r, 0);
    grid->addWidget(humans_[i], r, 1);
    grid->addWidget(emails_[i], r, 2);
  }
}

void RegimeRowsView::Show(const mf::RegimeRow* rows) {
  for (int r = 1; r <= count_; ++r) {
    const auto i = static_cast<std::size_t>(r);
    const mf::RegimeRow& row = rows[r];
    const QSignalBlocker bh(humans_[i]);
    names_[i]->setVisible(row.shown);
    humans_[i]->setVisible(row.shown);
    emails_[i]->setVisible(row.shown);
    names_[i]->setText(Q(row.name));
    humans_[i]->setChecked(row.human);
    if (emails_[i]->text() != Q(row.email)) {
      const QSignalBlocker be(emails_[i]);
      emails_[i]->setText(Q(row.email));
    }
  }
}

void RegimeRowsView::ConnectTo(QWidget* window, mf::StartChoices* dialog, const std::function<void()>& refresh) const {
  for (int r = 1; r <= count_; ++r) {
    const auto i = static_cast<std::size_t>(r);
    QObject::connect(humans_[i], &QCheckBox::toggled, window, [=](bool on) {
      std::string why;
      dialog->SetHuman(r, on, &why);
      refresh();
    });
    QObject::connect(emails_[i], &QLineEdit::textEdited, window, [=](const QString& t) {
      std::string why;
      dialog->SetEmail(r, t.toStdString(), &why);
    });
  }
}

}  // namespace mf::app
