#include "apps/screenshots/hostwindow.h"

#include <QApplication>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

#include <tolvi/foundation/errors.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

THostWindow::THostWindow(TJDBStructure& model, const THostTexts& texts)
    : FConditions(new TJQueryPanelView(this)), FColumns(new TJResultFieldsPanel(this)), FStatement(new QPlainTextEdit) {
  FPanel.SetTitles(texts.Titles);
  FPanel.SetDBStruct(&model);
  FPanel.SetActive(true);
  FConditions->SetCommandTitles(texts.Titles);
  FConditions->SetQueryPanel(&FPanel);
  FColumns->SetTitles(texts.Titles);
  FColumns->SetDBStruct(&model);
  FColumns->SetActive(true);
  FStatement->setReadOnly(true);
  FPanel.OnChange = [this](TJQueryPanel&) { ShowStatement(); };
  FColumns->OnChange = [this](TJResultFieldsPanel&) {
    FPanel.RFields().Assign(*FColumns->GetResultFields());
    ShowStatement();
  };

  auto* grid = new QGridLayout(this);
  const auto place = [&](const QString& caption, QWidget* widget, int row, int column, int columns) {
    auto* label = new QLabel(caption);
    label->setBuddy(widget);
    grid->addWidget(label, row, column, 1, columns);
    grid->addWidget(widget, row + 1, column, 1, columns);
    widget->setAccessibleName(label->text().remove(u'&'));
  };
  place(texts.Conditions, FConditions, 0, 0, 2);
  place(texts.Columns, FColumns, 2, 0, 1);
  place(texts.Statement, FStatement, 2, 1, 1);
  for (const int row : {1, 3}) grid->setRowStretch(row, row == 1 ? 6 : 5);
  for (const int column : {0, 1}) grid->setColumnStretch(column, column == 0 ? 5 : 6);
  resize(80 * fontMetrics().averageCharWidth() + 100, 32 * fontMetrics().height());
}

std::string THostWindow::GetStatement() {
  try {
    return FPanel.GetQueryText();
  } catch (const EException& error) {
    return error.Message();
  }
}

void THostWindow::ShowStatement() {
  FStatement->setPlainText(FPanel.RFields().Empty() ? QString() : ToQString(GetStatement()));
}

void THostWindow::Open() {
  show();
  QApplication::setActiveWindow(this);
  if (!QTest::qWaitForWindowActive(this)) throw EException("the window cannot be opened");
  FConditions->setFocus();
  QCoreApplication::processEvents();
}

}  // namespace tolvi
