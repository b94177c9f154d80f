#pragma once

#include <QLineEdit>
#include <QString>
#include <functional>
#include <vector>
class QCompleter;

namespace tolvi {

/// What a "{" offers: the text by which people find it, and what stands for it in the expression.
struct TFormulaName {
  QString Text, Reference;
};

/// A line for an expression with names in braces. Typing "{" offers the names; Enter or Tab takes one.
class TFormulaEdit final : public QLineEdit {
  Q_OBJECT

 public:
  explicit TFormulaEdit(QWidget* parent);

  /// Asked when names are first offered, and then after `ForgetNames`.
  std::function<std::vector<TFormulaName>()> OnNames;
  void ForgetNames() { FNamesKnown = false; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// The place of the brace that is open at the cursor; -1 for none.
  int OpenBrace() const;
  /// Behind the name at the cursor, and its closing brace if it has one.
  int EndOfName() const;
  void Offer();
  void Take(const QString& reference);

  QCompleter* FCompleter;
  bool FNamesKnown = false;
};

}  // namespace tolvi
