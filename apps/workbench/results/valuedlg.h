#pragma once

#include <QDialog>

namespace tolvi {

/// Shows one value whole, to be read and copied. Deletes itself when it is closed.
///
/// Object names: "results.value", "results.value.text", "results.value.copy".
class TValueDlg final : public QDialog {
  Q_OBJECT

 public:
  /// `isNull`: there is no value.
  TValueDlg(const QString& column, const QString& value, bool isNull, QWidget* parent);
};

}  // namespace tolvi
