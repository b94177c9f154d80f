// A structure panel in a window, and what a user does with it.
#pragma once

#include <QTimer>
#include <memory>
#include <stdexcept>

#include "support/models.h"
#include "uitest.h"
#include <tolvi/ui/panels/stdspnl.h>

namespace tolvi {

/// A panel in a window over the model of orders, whose catalogue knows the columns of its data fields.
class StructDesignPanel : public TUiTest {
 protected:
  void SetUp() override {
    TUiTest::SetUp();
    Info.OnFieldsRequest = [this](TJDBInfo&, std::string_view table, TDBFieldList& fields) {
      if (CatalogueFails) throw std::runtime_error("the connection is lost");
      for (const TDSField& field : Model->Fields()) {
        if (field.GetFieldKind() != jfkData || field.GetTable()->GetFullName() != table) continue;
        if (!fields.FindByName(field.GetFieldName())) fields.Add(field.GetFieldName(), field.GetFieldType());
      }
    };
    Info.OnKeysRequest = [](TJDBInfo&, std::string_view table, TStrings& keys) {
      keys.Add(table == "Customers" ? "CustNo" : "OrderNo");
    };
    Model->SetDatabaseInfo(&Info);
    Panel = new TJStructDesignPanel(&window);
    Panel->resize(600, 400);
    Panel->SetDBStruct(Model.get());
    Panel->SetShowActionHints(true);
    Panel->Activate();
    Panel->show();
    Panel->setFocus();
    user::Settle();
  }

  TTableRep& Box(std::string_view alias) const {
    return *Panel->FindTblRepByDSTable(Model->TableByName(tnAlias, alias));
  }
  QWidget& Viewport() const { return *Panel->DesignArea().viewport(); }
  QPoint At(const TTableRep& box, int x, int y) const {
    return Panel->DesignArea().mapFromScene(box.pos() + QPointF(x, y));
  }
  QPoint AtTitle(std::string_view alias) const { return At(Box(alias), 40, 10); }
  QPoint AtField(std::string_view alias, int index) const {
    const TTableBox box = Box(alias).GetBox();
    return At(Box(alias), 40, box.ListTop + index * box.ItemHeight + box.ItemHeight / 2);
  }
  /// By mouse, in co-ordinates of the viewport, with the button held down in between.
  void Drag(QPoint from, QPoint to) {
    QTest::mousePress(&Viewport(), Qt::LeftButton, {}, from);
    for (const QPoint& way : {from + (to - from) / 3, from + (to - from) * 2 / 3, to}) {
      QTest::mouseMove(&Viewport(), way);
    }
    QTest::mouseRelease(&Viewport(), Qt::LeftButton, {}, to);
    user::Settle();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { user::Press(window, key, modifiers); }
  void Hover(QPoint at) {
    QTest::mouseMove(&Viewport(), at);
    user::Settle();
  }
  /// Answers the next dialog by a key.
  void Answer(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    auto* timer = new QTimer(&window);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, key, modifiers] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (!dialog || !dialog->isActiveWindow()) return;
      timer->deleteLater();
      QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, key, modifiers);
      if (QApplication::activeModalWidget() == dialog) dialog->close();
    });
    timer->start(5);
  }

  std::unique_ptr<TJDBStructure> Model = OrdersModel();
  TJDBInfo Info;
  TJStructDesignPanel* Panel = nullptr;
  bool CatalogueFails = false;
};

}  // namespace tolvi
