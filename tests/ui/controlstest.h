#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <algorithm>

#include "uitest.h"
#include <tolvi/ui/controls/ddlabel.h>
#include <tolvi/ui/controls/itemmodel.h>

namespace tolvi {

/// Labels that open, and what is in their popup.
class Controls : public TUiTest {
 protected:
  /// Notes how often the label closed, and how.
  template <typename T>
  T& Watch(T& label) {
    label.OnAfterDropUp = [this](TDropDownLabel&, bool accepted) { closed += accepted ? u'+' : u'-'; };
    return label;
  }

  template <typename T>
  T& MakeList() {
    using namespace Qt::Literals::StringLiterals;
    T& label = Watch(Place(new T));
    label.AddItem(u"Cities"_s, u"b"_s, u"Berlin"_s);
    label.AddItem(u"Cities"_s, u"m"_s, u"M\u00fcnchen"_s);
    label.AddItem(u"Rivers"_s, u"r"_s, u"Rhine"_s);
    label.AddItem(u"Cities"_s, u"z"_s, u"Z\u00fcrich"_s);
    label.AddItem(QString(), u"n"_s, u"nowhere"_s);
    return label;
  }

  /// What the open list shows, headings in brackets.
  static QString Rows() {
    QStringList rows;
    const QAbstractItemModel& model = *View().model();
    for (int row = 0; row < model.rowCount(); ++row) {
      const QModelIndex index = model.index(row, 0);
      const QString text = index.data().toString();
      rows << (index.data(TItemModel::RoleIsHeading).toBool() ? u'[' + text + u']' : text);
    }
    return rows.join(u' ');
  }
  static QString Highlighted() { return View().currentIndex().data().toString(); }
  static QListView& View() { return *Popup()->findChild<QListView*>(); }
  static QLineEdit& Line() { return *Popup()->findChild<QLineEdit*>(); }
  static bool Tells(const QString& text) {
    const auto labels = Popup()->findChildren<QLabel*>();
    return std::ranges::any_of(labels,
                               [&](const QLabel* label) { return label->isVisible() && label->text() == text; });
  }
  static void ClickRow(int row) {
    Click(*View().viewport(), View().visualRect(View().model()->index(row, 0)).center());
  }

  QString closed;
};

}  // namespace tolvi
