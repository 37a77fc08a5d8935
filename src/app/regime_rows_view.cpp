#include "regime_rows_view.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include "view_text.h"

namespace mf::app {

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

void RegimeRowsView::Connect(QWidget* window, const std::function<void(int, bool)>& human,
                             const std::function<void(int, const std::string&)>& email,
                             const std::function<void()>& refresh) {
  for (int r = 1; r <= count_; ++r) {
    const auto i = static_cast<std::size_t>(r);
    QObject::connect(humans_[i], &QCheckBox::toggled, window, [=](bool on) {
      human(r, on);
      refresh();
    });
    QObject::connect(emails_[i], &QLineEdit::textEdited, window,
                     [=](const QString& t) { email(r, t.toStdString()); });
  }
}

}  // namespace mf::app
