#pragma once

#include <QDialog>
#include <functional>

#include <tolvi/foundation/strings.h>
#include <tolvi/query/titles.h>
#include <tolvi/ui/api.h>

class QLabel;
class QPlainTextEdit;

namespace tolvi {

/// What is wrong with a value, for people; empty when it is good.
using TValueCheck = std::function<QString(const QString& value)>;

/// Lets the user edit a list of values as lines, into which a column of a spreadsheet can be pasted. Blanks round a
/// value and empty lines do not count. A wrong value is marked, and can be kept. Ctrl+Enter is OK.
class TOLVI_WIDGETS_API T_dlgValueList final : public QDialog {
  Q_OBJECT

 public:
  T_dlgValueList(const TStrings& values, const QString& caption, const TTitles& titles, TValueCheck check,
                 QWidget* parent = nullptr);

  TStrings GetValues() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Check();

  const TValueCheck FCheck;
  QPlainTextEdit* FLines;
  QLabel* FTold;
};

/// Lets the user edit the values. Whether OK was chosen; else `values` stays.
TOLVI_WIDGETS_API bool EditValueList(QWidget* parent, TStrings& values, const QString& caption, const TTitles& titles,
                                     const TValueCheck& check);

}  // namespace tolvi
