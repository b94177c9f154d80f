#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

#include <tolvi/query/paramvalues.h>

namespace tolvi {

/// An editor of a parameter's value, by its type and by what the model says of its field: a line, a line with a
/// calendar, a choice of two or more, a list to check off, lines of items.
///
/// Values are texts in the same form in every language: dates in ISO form, numbers with a point, "1" and "0", several
/// items as a comma text.
class TParamEdit : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  /// The user has changed the value.
  std::function<void()> OnChange;

  virtual void SetValue(const QString& value) = 0;
  /// Empty for none. What cannot be read stays as it was typed.
  virtual QString GetValue() const = 0;
};

/// The editor of that parameter; has no value. `panel` is asked for words and formats and must outlive it.
TParamEdit* MakeParamEdit(const TParamInfo& param, const TJQueryPanel& panel, QWidget* parent);

/// A value between the form of the editors and the one in which the query keeps it.
QString ToEditForm(const std::string& stored, const TParamInfo& param, const TJQueryPanel& panel);
std::string ToStoredForm(const QString& value, const TParamInfo& param, const TJQueryPanel& panel);

/// Why it cannot be the value of the parameter; empty when it can.
QString FaultOfParam(const QString& value, const TParamInfo& param, const TJQueryPanel& panel);

}  // namespace tolvi
