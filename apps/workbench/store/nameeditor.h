#pragma once

#include <functional>

#include <tolvi/ui/controls/checkededitor.h>
class QLineEdit;

namespace tolvi {

/// A line in place of a name, with what is wrong with the new one below it. Enter, Tab and leaving the line hand the
/// text over, Escape gives up.
class TNameEditor final : public TCheckedEditor {
  Q_OBJECT

 public:
  /// Takes the line over, which holds the name.
  TNameEditor(QLineEdit& line, QWidget* parent);

  /// What is wrong with a name, as it is typed; empty when nothing is.
  std::function<QString(const QString& name)> OnCheck;
  /// Takes the name over, or says why not: then the editor stays, unless the user has left it. Not called for the
  /// former name.
  std::function<QString(const QString& name)> OnTake;
  /// The editor has closed, and goes; `fault` tells why a name that was left was not taken over.
  std::function<void(const QString& fault)> OnDone;

  QString Text() const;
  void GiveUp() { Close({}); }
  /// As wide as the parent, and as high as needed.
  void Place();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Check();
  void Take(bool isLeft);
  void Close(const QString& fault);

  QLineEdit& FLine;
  const QString FFormer;
  bool FBusy = false;
};

}  // namespace tolvi
