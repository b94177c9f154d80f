#pragma once

#include <QFrame>
#include <functional>
class QLabel;
class QPushButton;

namespace tolvi {

/// A note at the edge of a pane: what went wrong, or what was done, with a button that does something about it. Stays
/// until the user closes it or another one comes.
class TStoreNote final : public QFrame {
  Q_OBJECT

 public:
  explicit TStoreNote(QWidget* parent);

  /// The user has closed it.
  std::function<void()> OnClose;
  /// Whether it tells, or told, what went wrong.
  bool IsFault() const { return FIsFault; }

  void ShowFault(const QString& words) { Show(words, true, {}, {}); }
  void ShowOffer(const QString& words, const QString& button, std::function<void()> run) {
    Show(words, false, button, std::move(run));
  }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Show(const QString& words, bool isFault, const QString& button, std::function<void()> run);
  void ShowColors();

  QLabel* FWords;
  QPushButton* FButton;
  std::function<void()> FRun;
  bool FIsFault = false;
};

}  // namespace tolvi
