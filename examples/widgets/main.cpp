// A window with the panels of conditions and of result columns, and below them the statement that they make:
//   widgets samples/shop/shop.model samples/shop/queries/11-orders-to-look-at.qry [--sql]
// A button opens the model in the model editor. With --sql, the statement is printed and the program ends.
#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <cstdio>

#include <tolvi/query/querpnl.h>
#include <tolvi/ui/dialogs/modeldlg.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>

using namespace tolvi;

/// The statement, or why there is none.
static std::string Statement(TJQueryPanel& panel) {
  try {
    return panel.GetSQL().Joined("\n");
  } catch (const EException& error) {
    return error.Message();
  }
}

int main(int argc, char** argv) try {
  QApplication application(argc, argv);
  if (argc < 3) throw EException("usage: widgets MODEL QUERY [--sql]");
  TJDBStructure model;
  model.LoadFromFile(argv[1]);
  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  panel.LoadFromFile(argv[2]);

  QSplitter window(Qt::Vertical);
  auto* conditions = new TJQueryPanelView(&window);
  conditions->SetQueryPanel(&panel);
  auto* columns = new TJResultFieldsPanel(&window);
  columns->SetDBStruct(&model);
  columns->SetActive(true);
  columns->SetResultFields(panel.RFields());
  auto* sql = new QPlainTextEdit(&window);
  sql->setReadOnly(true);

  const auto showStatement = [&] { sql->setPlainText(QString::fromStdString(Statement(panel))); };
  panel.OnChange = [&](TJQueryPanel&) { showStatement(); };
  columns->OnChange = [&](TJResultFieldsPanel&) {
    panel.RFields().Assign(*columns->GetResultFields());
    showStatement();
  };
  showStatement();
  model.SetDMEButtons({dmbOpenSave});
  auto* edit = new QPushButton(QStringLiteral("Edit model..."), &window);
  QObject::connect(edit, &QPushButton::clicked, &window, [&] {
    if (EditModel(&window, model)) showStatement();
  });

  window.resize(900, 700);
  window.show();
  if (argc == 3) return QApplication::exec();
  QApplication::processEvents();
  std::puts(sql->toPlainText().toUtf8().constData());
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
